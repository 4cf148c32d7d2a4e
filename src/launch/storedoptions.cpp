#include "launch/storedoptions.h"

#include "launch/optiontable.h"
#include "platform/defaultscontroller.h"

#include <QFileInfo>

namespace tessera {

namespace {

/// Reads settings the way the controls show them.
struct Reader {
    const DefaultsController& defaults;
    const OptionRow& row;
    LaunchOptions& options;

    int position(const Key<float>& key) const
    {
        const OptionControl& control = row.control;
        const int index = defaults.index(key);
        const std::size_t count = control.items.size() + control.buttons.size();
        return index >= 0 && static_cast<std::size_t>(index) < count ? index : -1;
    }

    void operator()(int LaunchOptions::* box, const Key<bool>* key) const
    {
        options.*box = defaults.flag(*key) ? 1 : 0;
    }
    void operator()(int LaunchOptions::* selected, const Key<float>* key) const
    {
        options.*selected = position(*key);
    }
    void operator()(PopupState LaunchOptions::* popup, const Key<float>* key) const
    {
        if (row.control.growing)
            options.*popup = storedState(defaults, *key, *row.control.growing);
        else if (const int index = position(*key); index >= 0)
            options.*popup
                = {index, QString::fromLatin1(row.control.items[static_cast<std::size_t>(index)].title)};
    }
    template <class TextKey>
        requires(!std::is_same_v<TextKey, Key<bool>>)
    void operator()(QString LaunchOptions::* field, const TextKey* key) const
    {
        options.*field = defaults.text(*key);
    }
    // No row has anything else.
    void operator()(auto, const auto*) const { }
};

} // namespace

LaunchOptions storedOptions(const DefaultsController& defaults, const SelectedGame& selected)
{
    LaunchOptions options;
    for (const OptionRow& row : optionRows())
        std::visit(Reader{defaults, row, options}, row.member, row.setting);
    options.romsFolderFound = romsFolderExists(options.romsTextField);
    options.selected = selected;
    return options;
}

void switchRecordingOff(DefaultsController& defaults)
{
    for (const Key<bool>* key : {&keys::Movierecord, &keys::Replaymove}) {
        if (defaults.flag(*key))
            defaults.setFlag(*key, false);
    }
}

bool romsFolderExists(const QString& path)
{
    return !path.isEmpty() && QFileInfo::exists(path);
}

} // namespace tessera

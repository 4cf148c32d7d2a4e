#include "launch/argumentsarray.h"

#include "launch/optiontable.h"

#include <QStringTokenizer>

#include <algorithm>
#include <vector>

namespace tessera {

namespace {

using O = LaunchOptions;

// "-rotate" with '+', "-norotate" with '-'.
QString switched(QLatin1StringView option, char sign)
{
    return sign == '+' ? QString(option) : QStringLiteral("-no") + option.mid(1);
}

/// Appends what the command-line emulator is sent for a row.
struct SdlValue {
    const SdlArgument& sent;
    const O& options;
    QStringList& list;

    void operator()(int O::* member) const
    {
        const int state = options.*member;
        if (sent.positions.front() == nullptr) {
            list << switched(QLatin1StringView(sent.options), state ? '+' : '-');
            return;
        }
        const auto position = static_cast<std::size_t>(state);
        const char* signs = position < sent.positions.size() ? sent.positions[position] : nullptr;
        if (signs == nullptr)
            return;
        for (const QLatin1StringView option :
             QStringTokenizer(QLatin1StringView(sent.options), QLatin1Char(' ')))
            list << switched(option, *signs++);
    }
    void operator()(QString O::* field) const { appendValue(options.*field); }
    void operator()(PopupState O::* popup) const { appendValue((options.*popup).title); }

    void appendValue(const QString& value) const
    {
        list << QLatin1StringView(sent.options).chopped(1) << value;
    }
};

/// The value that MAME OS X is sent for a row.
struct OsxValue {
    const O& options;

    QString operator()(int O::* state) const
    {
        return options.*state ? QStringLiteral("1") : QStringLiteral("0");
    }
    QString operator()(QString O::* field) const { return options.*field; }
    QString operator()(PopupState O::* popup) const { return (options.*popup).title; }
};

std::vector<const OptionRow*> osxRows()
{
    std::vector<const OptionRow*> rows;
    for (const OptionRow& row : optionRows()) {
        if (row.osx.row != 0)
            rows.push_back(&row);
    }
    std::ranges::sort(rows, {}, [](const OptionRow* row) { return row->osx.row; });
    return rows;
}

} // namespace

QStringList argumentsArray(const LaunchOptions& options)
{
    QStringList list;
    for (const OptionRow& row : optionRows()) {
        if (row.sdl.append != nullptr)
            row.sdl.append(options, list);
        else if (row.sdl.row != 0)
            std::visit(SdlValue{row.sdl, options, list}, row.member);
    }
    return list;
}

QStringList argumentsArray2(const LaunchOptions& options)
{
    QStringList list;
    for (const OptionRow* row : osxRows()) {
        if (row->osx.withSoundOnly && options.popup_Sound.index == 0)
            continue;
        list << QLatin1StringView(row->osx.option)
             << (row->osx.value ? row->osx.value(options) : std::visit(OsxValue{options}, row->member));
    }
    return list;
}

bool takesValue(QStringView option)
{
    for (const OptionRow& row : optionRows()) {
        for (const QLatin1StringView sent :
             QStringTokenizer(QLatin1StringView(row.sdl.options), QLatin1Char(' '))) {
            if (sent.endsWith(QLatin1Char('=')) && option == sent.chopped(1))
                return true;
        }
    }
    return false;
}

} // namespace tessera

#include "app/windows/languagechoice.h"

#include "platform/defaultscontroller.h"

#include <algorithm>
#include <array>

namespace tessera {

namespace {

struct Language {
    const char* code;
    const char* name; ///< in itself; nullptr is the language of the system
};

constexpr std::array languages{
    Language{"", nullptr},
    Language{"en", "English"},
    Language{"ja", "日本語"},
};

} // namespace

LanguageChoice::LanguageChoice(DefaultsController& defaults, QWidget* parent)
    : QComboBox(parent)
    , m_defaults(defaults)
{
    setObjectName(QStringLiteral("languagePop"));
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    for (const Language& language : languages)
        addItem(language.name != nullptr ? QString::fromUtf8(language.name)
                                         : qtTrId("appearance_language_system"));
    connect(&defaults, &DefaultsController::changed, this, &LanguageChoice::showStored);
    connect(this, &QComboBox::activated, this, &LanguageChoice::store);
    showStored();
}

void LanguageChoice::showStored()
{
    const QString stored = m_defaults.stored().string(keys::Language.name);
    const auto chosen = std::ranges::find(
        languages, stored, [](const Language& each) { return QString::fromLatin1(each.code); });
    setCurrentIndex(chosen == languages.end() ? 0 : static_cast<int>(chosen - languages.begin()));
}

void LanguageChoice::store(int position)
{
    if (position == 0)
        m_defaults.forget(keys::Language);
    else
        m_defaults.keep(keys::Language,
                        QString::fromLatin1(languages[static_cast<std::size_t>(position)].code));
}

} // namespace tessera

#pragma once

#include "core/settingskeys.h"

#include <QString>

#include <functional>

namespace tessera {

/// Where the host of a web site is kept.
struct SiteHost {
    const ChosenKey* key;
    /// Where its pictures' host was kept while that was a setting of its own; read where the other is empty.
    const ChosenKey* former = nullptr;
};

/// Two web sites have pages about games and pictures of them.
// clang-format off
inline constexpr SiteHost firstSharedHost {&keys::InfositeHost1, &keys::SnapsiteHost1};
inline constexpr SiteHost secondSharedHost{&keys::InfositeHost5, &keys::SnapsiteHost3};
// clang-format on

using SettingReader = std::function<QString(const ChosenKey& key)>;

/// What the user typed, without blanks around it.
QString hostText(const SiteHost& host, const SettingReader& settingOf);

/// Whether the setting holds the host of a site.
bool isHostSetting(const QString& name);

} // namespace tessera

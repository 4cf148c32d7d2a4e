#pragma once

#include <QLatin1StringView>
#include <array>
#include <variant>

/// Every setting's name, kind and initial value, once. The names are fixed, cut-off words included.
namespace tessera {

/// A setting with an initial value. T is bool, float (an index or a size) or a Latin-1 text.
template <class T>
struct Key {
    QLatin1StringView name;
    T initial;
};

/// A setting that is absent until something is chosen.
struct ChosenKey {
    QLatin1StringView name;
};

using InitialValue = std::variant<bool, float, QLatin1StringView>;

/// A row of the table of initial values.
struct InitialSetting {
    QLatin1StringView name;
    InitialValue value;
};

namespace keys {

using Flag = Key<bool>;
using Index = Key<float>;
using Text = Key<QLatin1StringView>;

// clang-format off
#define TESSERA_FLAG(name, initial) inline constexpr Flag name{QLatin1StringView(#name), initial}
#define TESSERA_INDEX(name, initial) inline constexpr Index name{QLatin1StringView(#name), initial}
#define TESSERA_TEXT(name, initial) inline constexpr Text name{QLatin1StringView(#name), QLatin1StringView(initial)}
#define TESSERA_CHOSEN(name) inline constexpr ChosenKey name{QLatin1StringView(#name)}
// clang-format on

// Video and display
TESSERA_INDEX(Launchgamesusing, 0);
TESSERA_INDEX(Displaymode, 0);
TESSERA_INDEX(Videodriver, 2);
TESSERA_INDEX(Scaling, 0);
TESSERA_FLAG(Maximize, false);
TESSERA_FLAG(Keepaspect, true);
TESSERA_FLAG(Unevenstretch, true);
TESSERA_FLAG(Resolutionswitc, true);
TESSERA_FLAG(Waitvsync, false);
TESSERA_FLAG(Multithreading, false);
TESSERA_INDEX(Displayframeskip, 0);
TESSERA_INDEX(Displayrotation, 1);
TESSERA_INDEX(Displayflip, 0);
TESSERA_FLAG(Bilinear, false);
TESSERA_FLAG(Effect, false);
TESSERA_TEXT(Effectname, "none");
TESSERA_INDEX(ScalemodeArgPop, 0);
TESSERA_INDEX(ScalemodePop, 0);
TESSERA_FLAG(Artwork, false);
TESSERA_FLAG(Backdrops, false);
TESSERA_FLAG(Overlays, false);
TESSERA_FLAG(Bezels, false);
TESSERA_FLAG(Antialiased, true);
TESSERA_INDEX(Displaybeam, 1);
TESSERA_INDEX(Displayflicker, 0);

// Sound
TESSERA_INDEX(Soundoutput, 1);
TESSERA_INDEX(Soundvolume, 0);
TESSERA_INDEX(Soundsmplerate, 3);
TESSERA_TEXT(Audiolatency, "1");
TESSERA_FLAG(Soundsmples, true);

// Recording and playback
TESSERA_FLAG(Movierecord, false);
TESSERA_INDEX(Moviematrix, 0);
TESSERA_TEXT(Wavfilename, "Sound_record.wav");
TESSERA_TEXT(Mngfilename, "Movie_record.mng");
TESSERA_TEXT(Avifilename, "Movie_record.avi");

// Input
TESSERA_FLAG(Mousecontrolle, false);
TESSERA_FLAG(Joystickcontrolle, true);
TESSERA_FLAG(Lightguncontrolle, false);
TESSERA_FLAG(Offscreenreload, false);

// Emulator options and commands
TESSERA_FLAG(Registersimultaneous, false);
TESSERA_FLAG(Outputserror, false);
TESSERA_INDEX(Debugoptions, 0);
TESSERA_INDEX(Commandoption, 0);
TESSERA_INDEX(Commandexport, 0);
TESSERA_INDEX(Biostype, 0);
TESSERA_FLAG(Replaymove, false);
TESSERA_INDEX(Replaymatrix, 0);
TESSERA_INDEX(Recordfilepop, 0);
TESSERA_TEXT(Playbackfilename, "");
TESSERA_FLAG(Cheatsystem, false);
TESSERA_FLAG(Gameinfo, false);
TESSERA_FLAG(Automaticsavestate, false);
TESSERA_FLAG(Suppress_PS, false);

// Artwork, information sites and downloads
TESSERA_INDEX(Screenfolder, 0);
TESSERA_INDEX(Rominfosite, 0);
TESSERA_TEXT(VisitedURLPath, "https://www.mamedev.org/");
TESSERA_TEXT(VisitedRomPath, "");
TESSERA_INDEX(Snapdownsite, 0);
TESSERA_INDEX(AspectRatio, 0);

// Game list appearance. The two fonts begin as the system font, which app/ puts in place of the empty text;
// the colours are white at 0.9 and 0.5, as #AARRGGBB.
TESSERA_TEXT(TablefontName, "");
TESSERA_TEXT(FavoritefontName, "");
TESSERA_INDEX(rowHeight, 20);
TESSERA_INDEX(fontSize, 13);
TESSERA_INDEX(History_fontsize, 12);
TESSERA_FLAG(gamelist_coloring, false);
TESSERA_TEXT(TableViewTextColor, "#ffe6e6e6");
TESSERA_TEXT(TableViewTextColor2, "#80e6e6e6");

// Help window
TESSERA_INDEX(helpPopmenu, 0);
TESSERA_INDEX(helpTabview, 0);

// Verification report filters
TESSERA_FLAG(verifyromsButton_isgood, false);
TESSERA_FLAG(verifyromsButton_isbesta, false);
TESSERA_FLAG(verifyromsButton_iclength, false);
TESSERA_FLAG(verifyromsButton_iccsum, false);
TESSERA_FLAG(verifyromsButton_nredump, false);
TESSERA_FLAG(verifyromsButton_ngdk, false);
TESSERA_FLAG(verifyromsButton_isbad, true);
TESSERA_FLAG(verifyromsButton_notfound, false);
TESSERA_FLAG(verifyromsButton_nfsparent, false);
TESSERA_FLAG(verifyromsButton_nfngd, false);
TESSERA_FLAG(verifyromsButton_nfbo, false);
TESSERA_FLAG(verifyromsButton_other, false);

// Catalogue tools. The %1 of the favourites file is the home folder, which app/ fills in.
TESSERA_TEXT(old_favoritesfile, "%1/Library/Preferences/jp.Plover.Tessera_Favorites.xml");
TESSERA_INDEX(script_format, 0);
TESSERA_INDEX(script_emu, 0);
TESSERA_INDEX(script_filename, 0);
TESSERA_INDEX(script_option, 0);

// Written when the user chooses something
TESSERA_CHOSEN(ExecutionPath);
TESSERA_CHOSEN(MameosxPath);
TESSERA_CHOSEN(ApplicationPath);
TESSERA_CHOSEN(RomsPath);
TESSERA_CHOSEN(SnapPath);
TESSERA_CHOSEN(TitlesnapPath);
TESSERA_CHOSEN(GameflyersPath);
TESSERA_CHOSEN(HistoryPath);
TESSERA_CHOSEN(MameinfoPath);
TESSERA_CHOSEN(snapdownloadPath);
TESSERA_CHOSEN(titlessdownloadPath);
TESSERA_CHOSEN(flyersdownloadPath);
TESSERA_CHOSEN(FavoriteTable);
// Not gamelist_coloring: the switch that the list reads has no initial value, so that a fresh list is
// uncoloured.
TESSERA_CHOSEN(GamelistColoring);
TESSERA_CHOSEN(listfullPath);
TESSERA_CHOSEN(romsfolderPath);
TESSERA_CHOSEN(movefolderPath);
TESSERA_CHOSEN(listxmlPath);
TESSERA_CHOSEN(localizePath);
TESSERA_CHOSEN(verifyromsText);

// Tessera's own
TESSERA_CHOSEN(InfositeHost1);
TESSERA_CHOSEN(InfositeHost2);
TESSERA_CHOSEN(InfositeHost3);
TESSERA_CHOSEN(InfositeHost4);
TESSERA_CHOSEN(InfositeHost5);
TESSERA_CHOSEN(InfositeHost6);
TESSERA_CHOSEN(InfositeHost7);
TESSERA_CHOSEN(SnapsiteHost1);
TESSERA_CHOSEN(SnapsiteHost2);
TESSERA_CHOSEN(SnapsiteHost3);
TESSERA_CHOSEN(RecentDocuments);
TESSERA_CHOSEN(BuiltFrom);
TESSERA_CHOSEN(MainWindowGeometry);
TESSERA_CHOSEN(MainWindowColumns);
TESSERA_CHOSEN(MainWindowSplit);
TESSERA_CHOSEN(MainWindowSplit2);
TESSERA_CHOSEN(GameListChip);
TESSERA_CHOSEN(GameListFamilies);
TESSERA_CHOSEN(KeptSearches);
TESSERA_CHOSEN(LastSearches);
TESSERA_CHOSEN(FavoritesWindowColumns);
TESSERA_CHOSEN(FavoritesWindowSplit);
TESSERA_CHOSEN(FavoritesWindowSplit2);
TESSERA_CHOSEN(FavoritesWindowGeometry);
TESSERA_CHOSEN(MiniWindowGeometry);
TESSERA_CHOSEN(MiniWindowAbove);
TESSERA_CHOSEN(LogWindowGeometry);
TESSERA_CHOSEN(HelpWindowGeometry);
TESSERA_CHOSEN(HistoryWindowGeometry);
TESSERA_CHOSEN(HistoryFollows);
TESSERA_CHOSEN(UtilityWindowGeometry);
TESSERA_CHOSEN(BiosPanelGeometry);
TESSERA_CHOSEN(LearntBiosTitles);
TESSERA_CHOSEN(KeptVideoDrivers);
TESSERA_CHOSEN(KeptScaleModes);
TESSERA_CHOSEN(KeptSoundOutputs);
TESSERA_CHOSEN(RecordEditorGeometry);
TESSERA_CHOSEN(FavoritesEditorGeometry);
TESSERA_CHOSEN(FilterPanelGeometry);
TESSERA_CHOSEN(PlayedIsOff);
TESSERA_CHOSEN(PictureWholeSteps);
TESSERA_CHOSEN(DownloadPanelGeometry);
TESSERA_CHOSEN(ImageWindowGeometry);
TESSERA_CHOSEN(Language);

#undef TESSERA_FLAG
#undef TESSERA_INDEX
#undef TESSERA_TEXT
#undef TESSERA_CHOSEN

} // namespace keys

namespace detail {

template <class... T>
constexpr auto settingsTable(const Key<T>&... key)
{
    return std::array<InitialSetting, sizeof...(key)>{InitialSetting{key.name, InitialValue(key.initial)}...};
}

} // namespace detail

/// The 86 settings with an initial value, in their fixed order.
inline constexpr auto initialSettings = detail::settingsTable(
    keys::Launchgamesusing, keys::Displaymode, keys::Videodriver, keys::Scaling, keys::Maximize,
    keys::Keepaspect, keys::Unevenstretch, keys::Resolutionswitc, keys::Waitvsync, keys::Multithreading,
    keys::Displayframeskip, keys::Displayrotation, keys::Displayflip, keys::Bilinear, keys::Effect,
    keys::Effectname, keys::ScalemodeArgPop, keys::ScalemodePop, keys::Artwork, keys::Backdrops,
    keys::Overlays, keys::Bezels, keys::Antialiased, keys::Displaybeam, keys::Displayflicker,
    keys::Soundoutput, keys::Soundvolume, keys::Soundsmplerate, keys::Audiolatency, keys::Soundsmples,
    keys::Movierecord, keys::Moviematrix, keys::Wavfilename, keys::Mngfilename, keys::Avifilename,
    keys::Mousecontrolle, keys::Joystickcontrolle, keys::Lightguncontrolle, keys::Offscreenreload,
    keys::Registersimultaneous, keys::Outputserror, keys::Debugoptions, keys::Commandoption,
    keys::Commandexport, keys::Biostype, keys::Replaymove, keys::Replaymatrix, keys::Recordfilepop,
    keys::Playbackfilename, keys::Cheatsystem, keys::Gameinfo, keys::Automaticsavestate, keys::Suppress_PS,
    keys::Screenfolder, keys::Rominfosite, keys::VisitedURLPath, keys::VisitedRomPath, keys::Snapdownsite,
    keys::AspectRatio, keys::TablefontName, keys::FavoritefontName, keys::rowHeight, keys::fontSize,
    keys::History_fontsize, keys::gamelist_coloring, keys::TableViewTextColor, keys::TableViewTextColor2,
    keys::helpPopmenu, keys::helpTabview, keys::verifyromsButton_isgood, keys::verifyromsButton_isbesta,
    keys::verifyromsButton_iclength, keys::verifyromsButton_iccsum, keys::verifyromsButton_nredump,
    keys::verifyromsButton_ngdk, keys::verifyromsButton_isbad, keys::verifyromsButton_notfound,
    keys::verifyromsButton_nfsparent, keys::verifyromsButton_nfngd, keys::verifyromsButton_nfbo,
    keys::verifyromsButton_other, keys::old_favoritesfile, keys::script_format, keys::script_emu,
    keys::script_filename, keys::script_option);

static_assert(initialSettings.size() == 86);

} // namespace tessera

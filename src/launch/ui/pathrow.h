#pragma once

#include "core/settingskeys.h"

namespace tessera {

class DefaultsController;
class FormPage;
class PathChooser;
class PathField;

/// A line of a page of the preferences with a path that can be typed, chosen or shown in the file manager.
struct PathRow {
    const char* label; ///< text key
    const char* field; ///< names
    const char* button;
    const ChosenKey& key;
    void (PathChooser::*select)();
};

/// Tied to its setting; what is chosen takes the place of what is being typed.
PathField* addPathRow(FormPage& page, const PathRow& row, DefaultsController& defaults, PathChooser& chooser);

} // namespace tessera

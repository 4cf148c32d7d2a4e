#pragma once

#include "platform/defaultscontroller.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLineEdit;

namespace tessera {

/// Ties a control to a setting, both ways: the control shows the stored or the initial value and follows
/// every change of it; what the user does in the control is stored at once.
void bind(QCheckBox& box, DefaultsController& defaults, const Key<bool>& key);
/// A check box over a setting that has no initial value.
void bind(QCheckBox& box, DefaultsController& defaults, const ChosenKey& key);
/// The setting is the selected position; one that the pop-up does not have selects nothing.
void bind(QComboBox& popup, DefaultsController& defaults, const Key<float>& key);
/// The setting is the id of the checked button; one that no button has checks none.
void bind(QButtonGroup& buttons, DefaultsController& defaults, const Key<float>& key);
void bind(QLineEdit& field, DefaultsController& defaults, const Key<float>& key);
void bind(QLineEdit& field, DefaultsController& defaults, const Key<QLatin1StringView>& key);
void bind(QLineEdit& field, DefaultsController& defaults, const ChosenKey& key);

} // namespace tessera

#pragma once

#include <QStringList>

namespace tessera {

class DefaultsController;

/// The titles of the BIOS pop-up behind those that are shipped, in the order in which they were learnt.
/// Settings hold positions, so nothing is ever removed or moved.
QStringList learntBiosTitles(const DefaultsController& defaults);

/// Appends those that are in the pop-up nowhere yet. What could not stand on a command line as one word is
/// left out.
void learnBiosTitles(DefaultsController& defaults, const QStringList& titles);

} // namespace tessera

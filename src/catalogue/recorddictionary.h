#pragma once

#include "catalogue/gamerecord.h"

#include <QMap>
#include <QString>

namespace tessera {

/// A value as people read it: an absent one is empty.
QString fieldText(std::string_view value);

/// A record's values under its attributes' names. An absent value has no entry.
using RecordDictionary = QMap<QString, QString>;

/// All nine attributes.
RecordDictionary recordDictionary(const GameRecord& record);

/// The six of them that name a game: without type, status and device. An absent value reads "(null)".
RecordDictionary objectDictionary(const GameRecord& record);

/// A value as the selection's readers give it: an absent one reads "(null)".
QString shownValue(const GameRecord& record, Field field);

} // namespace tessera

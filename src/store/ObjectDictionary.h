#pragma once

#include <QList>
#include <QString>
#include <QVariant>
#include <QVariantMap>

namespace tabo {

class Record;
class RecordOwner;

// The plain-value dictionary form of a stored record: "class", every
// non-empty attribute by name (dates as seconds since 2001-01-01 under
// "dAtEaTtr:" + name), and relationships as nested dictionaries or lists of
// records not visited yet in the same walk.
namespace ObjectDictionary {

inline const QString kDatePrefix = QStringLiteral("dAtEaTtr:");
inline const QString kClassKey = QStringLiteral("class");

// `history` is shared by the whole walk; pass nullptr for a top-level call.
QVariantMap toDictionaryWithTraversalHistory(const Record &record, QList<const Record *> *history);
QVariantMap toDictionary(const Record &record);

// Fills the record from a dictionary: nested dictionaries and lists create
// related records in the same store; a "dAtEaTtr:" key reaches its attribute
// with the prefix stripped (a record-level fallback for unknown keys).
// Values of the wrong type for their attribute are ignored.
void populateFromDictionary(Record &record, const QVariantMap &dictionary);
// A new record of the entity named by "class" (nullptr for an unknown or
// missing class), filled from the dictionary.
Record *createManagedObjectFromDictionary(const QVariantMap &dictionary, RecordOwner &store);
// A date from the number when the key carries the date prefix, else the value.
QVariant decodedValueFrom(const QVariant &value, const QString &key);

} // namespace ObjectDictionary

} // namespace tabo

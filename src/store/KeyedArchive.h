#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

namespace tabo::KeyedArchive {

// The keyed-archiver binary property list ("bplist00" with "$version",
// "$archiver" = "NSKeyedArchiver", "$top" = {"root": UID}, "$objects"),
// with dictionaries, arrays, strings, integers, reals, booleans, dates and
// data and their class entries, so files are exchangeable with that format.
// Empty, with a reason, for values no property list can hold or nesting
// deeper than 256 levels.
QByteArray archive(const QVariant &root, QString *error = nullptr);

// Reads archives written by us or by the real archiver (binary or XML). Values
// of classes it does not know (URLs, UUIDs, …) are skipped: a dictionary
// entry or array element holding one is left out. Malformed input — wrong
// types, cyclic or dangling UIDs, deep nesting, huge counts — gives an
// invalid QVariant and a reason; it never crashes or hangs.
QVariant unarchive(const QByteArray &data, QString *error = nullptr);

} // namespace tabo::KeyedArchive

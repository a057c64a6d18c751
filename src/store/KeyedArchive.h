#pragma once

#include "base/Result.h"

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
Result<QByteArray> archive(const QVariant &root);

// Reads archives written by us or by the real archiver (binary or XML). Values
// of classes it does not know (URLs, UUIDs, …) are skipped: a dictionary
// entry or array element holding one is left out. Malformed input — wrong
// types, cyclic or dangling UIDs, deep nesting, huge counts — gives an
// Error with the reason; it never crashes or hangs.
Result<QVariant> unarchive(const QByteArray &data);

} // namespace tabo::KeyedArchive

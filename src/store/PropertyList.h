#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QMetaType>
#include <QString>
#include <QVariant>

namespace tabo::plist {

// A property-list value is a QVariant holding one of: QString, qint64
// (integer), double (real), bool, tabo::Date, QByteArray (data), QVariantList
// (array), QVariantMap (dictionary) — or, inside keyed archives only, Uid.
struct Uid
{
    quint64 value = 0;
    friend bool operator==(const Uid &a, const Uid &b) { return a.value == b.value; }
};

enum class Format { Xml, Binary };

// What a value is written as. Besides the types above this accepts their
// usual Qt relatives (other integer widths, float, QStringList, QVariantHash,
// QDateTime as a Date); Unsupported for anything else.
enum class Kind { Unsupported, String, Integer, Real, Boolean, Date, Data, Array, Dictionary, Uid };
Kind kindOf(const QVariant &value);
// The value in the type of its kind (qint64, double, bool, QString,
// tabo::Date, QByteArray, QVariantList, QVariantMap, Uid); invalid when
// unsupported. Nested values are left as they are.
QVariant canonical(const QVariant &value);

// Reals are written bit-exactly in both formats, dates in the binary one. An
// XML <date> holds whole seconds only (the format's convention): the fraction
// is dropped there, so exact times belong in reals.
Result<QByteArray> write(const QVariant &root, Format format);
// Decodes XML or binary (detected from the data). Any malformed, truncated or
// hostile input gives an Error with the reason, never a crash or a hang
// (nesting and sizes are bounded).
Result<QVariant> read(const QByteArray &data);

// Whole files; writing is atomic (the old file stays until the new one is
// complete).
Error writeFile(const QString &path, const QVariant &root, Format format);
Result<QVariant> readFile(const QString &path);

} // namespace tabo::plist

Q_DECLARE_METATYPE(tabo::plist::Uid)

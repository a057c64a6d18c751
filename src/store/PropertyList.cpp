#include "store/PropertyList.h"

#include "base/Date.h"
#include "prefs/ProtectedFiles.h"
#include "store/BinaryPlist.h"
#include "store/PlistDetail.h"
#include "store/XmlPlist.h"

#include <QDateTime>
#include <QFile>

#include <QCoreApplication>
#include <limits>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(PropertyList)
};
} // namespace

// libplist 2.2 is used for reading XML only. Its other paths are not exact
// enough for files that must round-trip: its dates are int32 seconds plus
// microseconds (bits are lost both ways, and years past 2038 clamp), its XML
// writer drops the sign of -0.0 and formats reals with the process locale,
// and its binary reader offers no bounds on shared or cyclic object graphs.
// The binary format and the XML writer are therefore done by hand
// (BinaryPlist, XmlPlist).

namespace tabo::plist {


namespace {

// libplist takes 32-bit lengths.
constexpr qint64 kMaxInput = std::numeric_limits<qint32>::max();

QVariantMap mapOf(const QVariant &value)
{
    if (value.typeId() != QMetaType::QVariantHash)
        return value.toMap();
    QVariantMap map;
    const QVariantHash hash = value.toHash();
    for (auto it = hash.begin(); it != hash.end(); ++it)
        map.insert(it.key(), it.value());
    return map;
}

} // namespace

Kind kindOf(const QVariant &value)
{
    const int type = value.typeId();
    if (type == qMetaTypeId<Date>())
        return Kind::Date;
    if (type == qMetaTypeId<Uid>())
        return Kind::Uid;
    switch (type) {
    case QMetaType::QString:
        return Kind::String;
    case QMetaType::Bool:
        return Kind::Boolean;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
        return Kind::Integer;
    case QMetaType::Double:
    case QMetaType::Float:
        return Kind::Real;
    case QMetaType::QByteArray:
        return Kind::Data;
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return Kind::Array;
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
        return Kind::Dictionary;
    case QMetaType::QDateTime:
        return Kind::Date;
    default:
        return Kind::Unsupported;
    }
}

QVariant canonical(const QVariant &value)
{
    switch (kindOf(value)) {
    case Kind::Unsupported:
        return {};
    case Kind::String:
        return value.toString();
    case Kind::Integer:
        return value.toLongLong();
    case Kind::Real:
        return value.toDouble();
    case Kind::Boolean:
        return value.toBool();
    case Kind::Date:
        if (value.typeId() == qMetaTypeId<Date>())
            return value;
        return QVariant::fromValue(Date::fromDateTime(value.toDateTime()));
    case Kind::Data:
        return value.toByteArray();
    case Kind::Array:
        return value.toList();
    case Kind::Dictionary:
        return mapOf(value);
    case Kind::Uid:
        return value;
    }
    return {};
}

Result<QByteArray> write(const QVariant &root, Format format)
{
    if (format == Format::Binary)
        return detail::BinaryWriter().write(root);
    return detail::XmlWriter().write(root);
}

Result<QVariant> read(const QByteArray &data)
{
    if (data.isEmpty())
        return Error::file(Tr::tr("empty property list"));
    if (data.size() > kMaxInput)
        return Error::file(Tr::tr("property list too large"));
    if (data.startsWith("bplist")) {
        if (!data.startsWith("bplist00"))
            return Error::file(Tr::tr("unsupported binary property list version"));
        return detail::BinaryReader(data).read();
    }
    qsizetype start = data.startsWith("\xEF\xBB\xBF") ? 3 : 0;
    while (start < data.size() && QChar::isSpace(uchar(data.at(start))))
        ++start;
    if (start >= data.size() || data.at(start) != '<')
        return Error::file(Tr::tr("not a property list"));
    return detail::readXml(data);
}

Error writeFile(const QString &path, const QVariant &root, Format format)
{
    const Result<QByteArray> data = write(root, format);
    if (!data)
        return data.error();
    return ProtectedFiles::writeAtomically(path, data.value());
}

Result<QVariant> readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Error::file(Tr::tr("cannot open %1: %2").arg(path, file.errorString()));
    if (file.size() > kMaxInput)
        return Error::file(Tr::tr("property list too large"));
    return read(file.readAll());
}

} // namespace tabo::plist

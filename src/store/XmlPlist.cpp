#include "store/XmlPlist.h"

#include "base/Date.h"
#include "store/PlistDetail.h"
#include "store/PropertyList.h"

#include <QDateTime>

#include <plist/plist.h>

#include <QCoreApplication>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <locale.h>
#include <string_view>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(XmlPlist)
};
} // namespace

namespace tabo::plist::detail {

namespace {

QByteArray escaped(const QString &text)
{
    QByteArray out = text.toUtf8();
    // A raw CR would come back as LF from XML readers that normalise line ends.
    out.replace('&', "&amp;").replace('<', "&lt;").replace('>', "&gt;").replace('\r', "&#13;");
    return out;
}

// Shortest text that reads back to the same double, independent of the
// process locale.
QByteArray realText(double d)
{
    if (std::isnan(d))
        return "nan";
    if (std::isinf(d))
        return d > 0 ? "+infinity" : "-infinity";
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, d);
    return QByteArray(buffer, result.ptr - buffer);
}

} // namespace

bool XmlWriter::value(const QVariant &raw, int depth)
{
    if (depth > kMaxDepth)
        return fail(tooDeep());
    const QVariant v = canonical(raw);
    switch (kindOf(v)) {
    case Kind::Unsupported:
        return fail(Tr::tr("cannot write a value of type %1")
                        .arg(QString::fromLatin1(raw.isValid() ? raw.typeName() : "(none)")));
    case Kind::String:
        element(depth, "string", escaped(v.toString()));
        return true;
    case Kind::Integer:
        element(depth, "integer", QByteArray::number(v.toLongLong()));
        return true;
    case Kind::Real:
        element(depth, "real", realText(v.toDouble()));
        return true;
    case Kind::Boolean:
        line(depth, v.toBool() ? "<true/>" : "<false/>");
        return true;
    case Kind::Date: {
        const Date date = v.value<Date>();
        const double seconds = std::floor(date.unixSeconds());
        if (!date.isValid() || std::abs(seconds) > 2.5e11) // beyond year 9999
            return fail(Tr::tr("date out of range"));
        const QDateTime dt = QDateTime::fromSecsSinceEpoch(qint64(seconds), Qt::UTC);
        element(depth, "date", dt.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ssZ")).toLatin1());
        return true;
    }
    case Kind::Data:
        element(depth, "data", v.toByteArray().toBase64());
        return true;
    case Kind::Uid:
        line(depth, "<dict>");
        element(depth + 1, "key", "CF$UID");
        element(depth + 1, "integer", QByteArray::number(v.value<Uid>().value));
        line(depth, "</dict>");
        return true;
    case Kind::Array: {
        const QVariantList list = v.toList();
        if (list.isEmpty()) {
            line(depth, "<array/>");
            return true;
        }
        line(depth, "<array>");
        for (const QVariant &item : list)
            if (!value(item, depth + 1))
                return false;
        line(depth, "</array>");
        return true;
    }
    case Kind::Dictionary: {
        const QVariantMap map = v.toMap();
        if (map.isEmpty()) {
            line(depth, "<dict/>");
            return true;
        }
        line(depth, "<dict>");
        for (auto it = map.begin(); it != map.end(); ++it) {
            element(depth + 1, "key", escaped(it.key()));
            if (!value(it.value(), depth + 1))
                return false;
        }
        line(depth, "</dict>");
        return true;
    }
    }
    return false;
}

Result<QByteArray> XmlWriter::write(const QVariant &root)
{
    m_out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
            "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
            "<plist version=\"1.0\">\n";
    if (!value(root, 0))
        return Error::file(m_error);
    m_out.append("</plist>\n");
    return m_out;
}

// --- XML reader (libplist) ------------------------------------------------

namespace {

// An upper bound of the element nesting, found without parsing, so that
// libplist's recursive code never sees deep input.
int xmlNesting(const QByteArray &data)
{
    int depth = 0, deepest = 0;
    const std::string_view text(data.constData(), size_t(data.size()));
    const auto isTag = [&](qsizetype at) {
        for (std::string_view name : { std::string_view("array"), std::string_view("dict") }) {
            const qsizetype n = qsizetype(name.size());
            if (at + n < data.size() && text.substr(size_t(at), name.size()) == name) {
                const char next = data.at(at + n);
                if (next == '>' || next == '/' || next == ' ' || next == '\t' || next == '\n' || next == '\r')
                    return true;
            }
        }
        return false;
    };
    for (qsizetype i = data.indexOf('<'); i >= 0; i = data.indexOf('<', i + 1)) {
        if (i + 1 < data.size() && data.at(i + 1) == '/') {
            if (isTag(i + 2))
                --depth;
        } else if (isTag(i + 1)) {
            const qsizetype end = data.indexOf('>', i);
            if (end < 0 || data.at(end - 1) != '/')
                deepest = std::max(deepest, ++depth);
        }
    }
    return deepest;
}

// libplist parses reals with strtod, which follows LC_NUMERIC; the process
// locale may use a decimal comma.
class CNumericLocale
{
public:
    CNumericLocale()
        : m_c(newlocale(LC_NUMERIC_MASK, "C", locale_t(nullptr)))
    {
        if (m_c)
            m_old = uselocale(m_c);
    }
    ~CNumericLocale()
    {
        if (m_c) {
            uselocale(m_old);
            freelocale(m_c);
        }
    }
    CNumericLocale(const CNumericLocale &) = delete;
    CNumericLocale &operator=(const CNumericLocale &) = delete;

private:
    locale_t m_c;
    locale_t m_old = nullptr;
};

Result<QVariant> fromNode(plist_t node, int depth);

// A leaf: its value, or an invalid QVariant when the node is a container.
QVariant scalarOf(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        uint8_t v = 0;
        plist_get_bool_val(node, &v);
        return v != 0;
    }
    case PLIST_UINT: {
        uint64_t v = 0;
        plist_get_uint_val(node, &v);
        return qint64(v);
    }
    case PLIST_REAL: {
        double v = 0;
        plist_get_real_val(node, &v);
        return v;
    }
    case PLIST_STRING:
    case PLIST_KEY: {
        uint64_t length = 0;
        const char *text = plist_get_string_ptr(node, &length);
        return text ? QString::fromUtf8(text, qsizetype(length)) : QString();
    }
    case PLIST_DATA: {
        uint64_t length = 0;
        const char *bytes = plist_get_data_ptr(node, &length);
        return bytes ? QByteArray(bytes, qsizetype(length)) : QByteArray();
    }
    case PLIST_UID: {
        uint64_t v = 0;
        plist_get_uid_val(node, &v);
        return QVariant::fromValue(Uid { v });
    }
    default:
        return {};
    }
}

Result<QVariant> dateOf(plist_t node)
{
    int32_t sec = 0, usec = 0;
    plist_get_date_val(node, &sec, &usec);
    if (sec == std::numeric_limits<int32_t>::min()) // libplist's clamp for years it cannot hold
        return Error::file(Tr::tr("date out of range"));
    return QVariant::fromValue(Date::fromReferenceSeconds(double(sec) + double(usec) / 1e6));
}

Result<QVariant> arrayOf(plist_t node, int depth)
{
    QVariantList list;
    const uint32_t size = plist_array_get_size(node);
    for (uint32_t i = 0; i < size; ++i) {
        Result<QVariant> item = fromNode(plist_array_get_item(node, i), depth + 1);
        if (!item)
            return item;
        list.append(item.value());
    }
    return QVariant(list);
}

Result<QVariant> dictionaryOf(plist_t node, int depth)
{
    QVariantMap map;
    plist_dict_iter it = nullptr;
    plist_dict_new_iter(node, &it);
    Error error;
    while (!error && it) {
        char *key = nullptr;
        plist_t item = nullptr;
        plist_dict_next_item(node, it, &key, &item);
        if (!item) {
            free(key);
            break;
        }
        const Result<QVariant> value = fromNode(item, depth + 1);
        if (value)
            map.insert(QString::fromUtf8(key), value.value());
        error = value.error();
        free(key);
    }
    free(it);
    if (error)
        return error;
    return QVariant(map);
}

Result<QVariant> fromNode(plist_t node, int depth)
{
    if (depth > kMaxDepth)
        return Error::file(tooDeep());
    switch (plist_get_node_type(node)) {
    case PLIST_DATE:
        return dateOf(node);
    case PLIST_ARRAY:
        return arrayOf(node, depth);
    case PLIST_DICT:
        return dictionaryOf(node, depth);
    default:
        if (QVariant value = scalarOf(node); value.isValid())
            return value;
        return Error::file(Tr::tr("unknown XML element"));
    }
}

} // namespace

Result<QVariant> readXml(const QByteArray &data)
{
    if (xmlNesting(data) > kMaxDepth + 1)
        return Error::file(tooDeep());
    plist_t root = nullptr;
    {
        CNumericLocale c;
        plist_from_xml(data.constData(), uint32_t(data.size()), &root);
    }
    if (!root)
        return Error::file(Tr::tr("not a valid XML property list"));
    Result<QVariant> out = fromNode(root, 0);
    plist_free(root);
    return out;
}

} // namespace tabo::plist::detail

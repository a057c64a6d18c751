#include "store/PropertyList.h"

#include "domain/Date.h"

#include <QDateTime>
#include <QFile>
#include <QHash>
#include <QSaveFile>

#include <plist/plist.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <locale.h>
#include <string_view>
#include <vector>

// libplist 2.2 is used for reading XML only. Its other paths are not exact
// enough for files that must round-trip: its dates are int32 seconds plus
// microseconds (bits are lost both ways, and years past 2038 clamp), its XML
// writer drops the sign of -0.0 and formats reals with the process locale,
// and its binary reader offers no bounds on shared or cyclic object graphs.
// The binary format and the XML writer are therefore done here by hand.

namespace tabo::plist {

namespace {

constexpr int kMaxDepth = 256;
// libplist takes 32-bit lengths.
constexpr qint64 kMaxInput = std::numeric_limits<qint32>::max();

void setError(QString *error, const QString &text)
{
    if (error)
        *error = text;
}

QString tooDeep()
{
    return QStringLiteral("nested deeper than %1 levels").arg(kMaxDepth);
}

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

int bytesFor(quint64 v)
{
    return v <= 0xFF ? 1 : v <= 0xFFFF ? 2 : v <= 0xFFFFFFFFu ? 4 : 8;
}

void appendBigEndian(QByteArray &out, quint64 v, int size)
{
    for (int i = size - 1; i >= 0; --i)
        out.append(char((v >> (8 * i)) & 0xFF));
}

// --- binary writer --------------------------------------------------------

class BinaryWriter
{
public:
    QByteArray write(const QVariant &root, QString *error);

private:
    struct Node
    {
        Kind kind;
        QVariant value; // scalars
        QList<quint64> refs; // arrays: items; dictionaries: keys, then values
    };

    qint64 add(const QVariant &value, int depth);
    qint64 addString(const QString &text);
    qint64 fail(const QString &reason)
    {
        m_error = reason;
        return -1;
    }
    static void appendMarker(QByteArray &out, int type, quint64 count);
    static void appendInteger(QByteArray &out, qint64 v);
    static void appendNode(QByteArray &out, const Node &node, int refSize);

    QList<Node> m_nodes;
    QHash<QString, quint64> m_strings; // equal strings are stored once
    QString m_error;
};

qint64 BinaryWriter::addString(const QString &text)
{
    auto it = m_strings.constFind(text);
    if (it != m_strings.constEnd())
        return qint64(*it);
    m_nodes.append({ Kind::String, text, {} });
    m_strings.insert(text, m_nodes.size() - 1);
    return m_nodes.size() - 1;
}

qint64 BinaryWriter::add(const QVariant &raw, int depth)
{
    if (depth > kMaxDepth)
        return fail(tooDeep());
    const QVariant value = canonical(raw);
    const Kind kind = kindOf(value);
    switch (kind) {
    case Kind::Unsupported:
        return fail(QStringLiteral("cannot write a value of type %1")
                        .arg(QString::fromLatin1(raw.isValid() ? raw.typeName() : "(none)")));
    case Kind::String:
        return addString(value.toString());
    case Kind::Array: {
        const qint64 index = m_nodes.size();
        m_nodes.append({ kind, {}, {} });
        QList<quint64> refs;
        for (const QVariant &item : value.toList()) {
            const qint64 ref = add(item, depth + 1);
            if (ref < 0)
                return -1;
            refs.append(quint64(ref));
        }
        m_nodes[index].refs = refs;
        return index;
    }
    case Kind::Dictionary: {
        const qint64 index = m_nodes.size();
        m_nodes.append({ kind, {}, {} });
        const QVariantMap map = value.toMap();
        QList<quint64> keys, values;
        for (auto it = map.begin(); it != map.end(); ++it) {
            keys.append(quint64(addString(it.key())));
            const qint64 ref = add(it.value(), depth + 1);
            if (ref < 0)
                return -1;
            values.append(quint64(ref));
        }
        m_nodes[index].refs = keys + values;
        return index;
    }
    case Kind::Date:
        if (!value.value<Date>().isValid())
            return fail(QStringLiteral("invalid date"));
        break;
    default:
        break;
    }
    m_nodes.append({ kind, value, {} });
    return m_nodes.size() - 1;
}

void BinaryWriter::appendInteger(QByteArray &out, qint64 v)
{
    // Negative numbers take the signed 8-byte form; smaller forms are unsigned.
    const int size = v < 0 ? 8 : bytesFor(quint64(v));
    out.append(char(0x10 | std::countr_zero(unsigned(size))));
    appendBigEndian(out, quint64(v), size);
}

void BinaryWriter::appendMarker(QByteArray &out, int type, quint64 count)
{
    if (count < 15) {
        out.append(char(type << 4 | int(count)));
    } else {
        out.append(char(type << 4 | 0xF));
        appendInteger(out, qint64(count));
    }
}

void BinaryWriter::appendNode(QByteArray &out, const Node &node, int refSize)
{
    switch (node.kind) {
    case Kind::Boolean:
        out.append(node.value.toBool() ? '\x09' : '\x08');
        break;
    case Kind::Integer:
        appendInteger(out, node.value.toLongLong());
        break;
    case Kind::Real:
        out.append('\x23');
        appendBigEndian(out, std::bit_cast<quint64>(node.value.toDouble()), 8);
        break;
    case Kind::Date:
        out.append('\x33');
        appendBigEndian(out, std::bit_cast<quint64>(node.value.value<Date>().referenceSeconds()), 8);
        break;
    case Kind::Data: {
        const QByteArray data = node.value.toByteArray();
        appendMarker(out, 0x4, quint64(data.size()));
        out.append(data);
        break;
    }
    case Kind::String: {
        const QString text = node.value.toString();
        bool ascii = true;
        for (QChar c : text)
            ascii = ascii && c.unicode() < 0x80;
        if (ascii) {
            appendMarker(out, 0x5, quint64(text.size()));
            out.append(text.toLatin1());
        } else {
            appendMarker(out, 0x6, quint64(text.size()));
            for (QChar c : text)
                appendBigEndian(out, c.unicode(), 2);
        }
        break;
    }
    case Kind::Uid: {
        const quint64 v = node.value.value<Uid>().value;
        const int size = bytesFor(v);
        out.append(char(0x80 | (size - 1)));
        appendBigEndian(out, v, size);
        break;
    }
    case Kind::Array:
    case Kind::Dictionary:
        appendMarker(out, node.kind == Kind::Array ? 0xA : 0xD,
            quint64(node.kind == Kind::Array ? node.refs.size() : node.refs.size() / 2));
        for (quint64 ref : node.refs)
            appendBigEndian(out, ref, refSize);
        break;
    case Kind::Unsupported:
        break;
    }
}

QByteArray BinaryWriter::write(const QVariant &root, QString *error)
{
    if (add(root, 0) < 0) {
        setError(error, m_error);
        return {};
    }
    QByteArray out("bplist00");
    const int refSize = bytesFor(quint64(m_nodes.size() - 1));
    QList<quint64> offsets;
    offsets.reserve(m_nodes.size());
    for (const Node &node : std::as_const(m_nodes)) {
        offsets.append(quint64(out.size()));
        appendNode(out, node, refSize);
    }
    const quint64 tableOffset = quint64(out.size());
    const int offsetSize = bytesFor(tableOffset);
    for (quint64 offset : std::as_const(offsets))
        appendBigEndian(out, offset, offsetSize);
    out.append(6, '\0'); // unused, sort version
    out.append(char(offsetSize));
    out.append(char(refSize));
    appendBigEndian(out, quint64(m_nodes.size()), 8);
    appendBigEndian(out, 0, 8); // the root is the first object
    appendBigEndian(out, tableOffset, 8);
    return out;
}

// --- binary reader --------------------------------------------------------

class BinaryReader
{
public:
    explicit BinaryReader(const QByteArray &data)
        : m_data(reinterpret_cast<const uchar *>(data.constData()))
        , m_size(quint64(data.size()))
        , m_maxWeight(std::max<quint64>(quint64(1) << 20, 16 * m_size))
    {
    }
    QVariant read(QString *error);

private:
    QVariant object(quint64 index, int depth);
    QVariant container(quint64 index, quint64 pos, bool dictionary, quint64 count, int depth);
    QVariant fail(const QString &reason)
    {
        if (m_error.isEmpty())
            m_error = reason;
        return {};
    }
    quint64 bigEndian(quint64 pos, int size) const
    {
        quint64 v = 0;
        for (int i = 0; i < size; ++i)
            v = v << 8 | m_data[pos + quint64(i)];
        return v;
    }
    // Objects live between the header and the offset table.
    bool fits(quint64 pos, quint64 length) const { return pos <= m_tableOffset && length <= m_tableOffset - pos; }
    bool readCount(quint64 &pos, int info, quint64 &count);

    const uchar *m_data;
    quint64 m_size;
    // Shared subtrees are read once, but whoever walks the result sees them
    // expanded; this bounds that expansion.
    quint64 m_maxWeight;
    int m_offsetSize = 0;
    int m_refSize = 0;
    quint64 m_count = 0;
    quint64 m_tableOffset = 0;
    std::vector<quint8> m_state; // 0 unread, 1 being read, 2 read
    QHash<quint64, QVariant> m_containers;
    QHash<quint64, quint64> m_weights;
    quint64 m_lastWeight = 0;
    QString m_error;
};

QVariant BinaryReader::read(QString *error)
{
    if (m_size < 8 + 2 + 32) {
        fail(QStringLiteral("truncated binary property list"));
    } else {
        const quint64 trailer = m_size - 32;
        m_offsetSize = m_data[trailer + 6];
        m_refSize = m_data[trailer + 7];
        m_count = bigEndian(trailer + 8, 8);
        const quint64 top = bigEndian(trailer + 16, 8);
        m_tableOffset = bigEndian(trailer + 24, 8);
        if (m_offsetSize < 1 || m_offsetSize > 8 || m_refSize < 1 || m_refSize > 8 || m_tableOffset < 9
            || m_tableOffset > trailer || m_count == 0 || top >= m_count
            || m_count > (trailer - m_tableOffset) / quint64(m_offsetSize))
            fail(QStringLiteral("damaged binary property list trailer"));
        else {
            m_state.assign(m_count, 0);
            QVariant root = object(top, 0);
            if (m_error.isEmpty())
                return root;
        }
    }
    setError(error, m_error);
    return {};
}

bool BinaryReader::readCount(quint64 &pos, int info, quint64 &count)
{
    if (info != 0xF) {
        count = quint64(info);
        return true;
    }
    if (!fits(pos, 1))
        return false;
    const int marker = m_data[pos++];
    if (marker >> 4 != 1 || (marker & 0xF) > 3)
        return false;
    const int size = 1 << (marker & 0xF);
    if (!fits(pos, quint64(size)))
        return false;
    count = bigEndian(pos, size);
    pos += quint64(size);
    return true;
}

QVariant BinaryReader::object(quint64 index, int depth)
{
    m_lastWeight = 1;
    if (depth > kMaxDepth)
        return fail(tooDeep());
    if (m_state[index] == 1)
        return fail(QStringLiteral("cyclic object reference"));
    if (m_state[index] == 2) {
        m_lastWeight = m_weights.value(index);
        return m_containers.value(index);
    }
    quint64 pos = bigEndian(m_tableOffset + index * quint64(m_offsetSize), m_offsetSize);
    if (pos < 8 || pos >= m_tableOffset)
        return fail(QStringLiteral("object offset out of range"));
    const int marker = m_data[pos++];
    const int type = marker >> 4;
    const int info = marker & 0xF;
    const QString truncated = QStringLiteral("object extends past the data");
    switch (type) {
    case 0x0:
        if (info == 0x8 || info == 0x9)
            return info == 0x9;
        break;
    case 0x1: {
        if (info > 4)
            break;
        const quint64 size = quint64(1) << info;
        if (!fits(pos, size))
            return fail(truncated);
        // 16-byte integers carry unsigned 64-bit values in their low half.
        return qint64(size == 16 ? bigEndian(pos + 8, 8) : bigEndian(pos, int(size)));
    }
    case 0x2:
        if (info != 2 && info != 3)
            break;
        if (!fits(pos, quint64(1) << info))
            return fail(truncated);
        if (info == 2)
            return double(std::bit_cast<float>(quint32(bigEndian(pos, 4))));
        return std::bit_cast<double>(bigEndian(pos, 8));
    case 0x3:
        if (info != 3)
            break;
        if (!fits(pos, 8))
            return fail(truncated);
        return QVariant::fromValue(Date::fromReferenceSeconds(std::bit_cast<double>(bigEndian(pos, 8))));
    case 0x4:
    case 0x5:
    case 0x6:
    case 0x7: {
        quint64 count = 0;
        if (!readCount(pos, info, count))
            return fail(QStringLiteral("damaged length"));
        const quint64 unit = type == 0x6 ? 2 : 1;
        if (count > (m_tableOffset - std::min(pos, m_tableOffset)) / unit)
            return fail(truncated);
        const char *bytes = reinterpret_cast<const char *>(m_data + pos);
        if (type == 0x4)
            return QByteArray(bytes, qsizetype(count));
        if (type == 0x5)
            return QString::fromLatin1(bytes, qsizetype(count));
        if (type == 0x7)
            return QString::fromUtf8(bytes, qsizetype(count));
        QString text(qsizetype(count), Qt::Uninitialized);
        for (quint64 i = 0; i < count; ++i)
            text[qsizetype(i)] = QChar(char16_t(bigEndian(pos + 2 * i, 2)));
        return text;
    }
    case 0x8:
        if (info > 7)
            break;
        if (!fits(pos, quint64(info) + 1))
            return fail(truncated);
        return QVariant::fromValue(Uid { bigEndian(pos, info + 1) });
    case 0xA:
    case 0xC:
    case 0xD: {
        quint64 count = 0;
        if (!readCount(pos, info, count))
            return fail(QStringLiteral("damaged length"));
        return container(index, pos, type == 0xD, count, depth);
    }
    default:
        break;
    }
    return fail(QStringLiteral("unknown object type 0x%1").arg(marker, 2, 16, QLatin1Char('0')));
}

QVariant BinaryReader::container(quint64 index, quint64 pos, bool dictionary, quint64 count, int depth)
{
    const quint64 refs = dictionary ? 2 : 1;
    if (count > (m_tableOffset - std::min(pos, m_tableOffset)) / quint64(m_refSize) / refs)
        return fail(QStringLiteral("element count larger than the data"));
    m_state[index] = 1;
    quint64 weight = 1;
    QVariantList items;
    items.reserve(qsizetype(count * refs));
    for (quint64 i = 0; i < count * refs; ++i) {
        const quint64 ref = bigEndian(pos + i * quint64(m_refSize), m_refSize);
        if (ref >= m_count)
            return fail(QStringLiteral("object reference out of range"));
        items.append(object(ref, depth + 1));
        if (!m_error.isEmpty())
            return {};
        weight += m_lastWeight;
        if (weight > m_maxWeight)
            return fail(QStringLiteral("too many values"));
    }
    QVariant result;
    if (dictionary) {
        QVariantMap map;
        for (quint64 i = 0; i < count; ++i) {
            const QVariant &key = items.at(qsizetype(i));
            if (key.typeId() != QMetaType::QString)
                return fail(QStringLiteral("dictionary key is not a string"));
            map.insert(key.toString(), items.at(qsizetype(count + i)));
        }
        result = map;
    } else {
        result = items;
    }
    m_state[index] = 2;
    m_containers.insert(index, result);
    m_weights.insert(index, weight);
    m_lastWeight = weight;
    return result;
}

// --- XML writer -----------------------------------------------------------

class XmlWriter
{
public:
    QByteArray write(const QVariant &root, QString *error);

private:
    bool value(const QVariant &raw, int depth);
    void line(int depth, const QByteArray &text)
    {
        m_out.append(QByteArray(depth, '\t'));
        m_out.append(text);
        m_out.append('\n');
    }
    void element(int depth, const char *tag, const QByteArray &content)
    {
        line(depth, '<' + QByteArray(tag) + '>' + content + "</" + QByteArray(tag) + '>');
    }
    bool fail(const QString &reason)
    {
        m_error = reason;
        return false;
    }

    QByteArray m_out;
    QString m_error;
};

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

bool XmlWriter::value(const QVariant &raw, int depth)
{
    if (depth > kMaxDepth)
        return fail(tooDeep());
    const QVariant v = canonical(raw);
    switch (kindOf(v)) {
    case Kind::Unsupported:
        return fail(QStringLiteral("cannot write a value of type %1")
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
            return fail(QStringLiteral("date out of range"));
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

QByteArray XmlWriter::write(const QVariant &root, QString *error)
{
    m_out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
            "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
            "<plist version=\"1.0\">\n";
    if (!value(root, 0)) {
        setError(error, m_error);
        return {};
    }
    m_out.append("</plist>\n");
    return m_out;
}

// --- XML reader (libplist) ------------------------------------------------

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

bool fromNode(plist_t node, int depth, QVariant &out, QString &error)
{
    if (depth > kMaxDepth) {
        error = tooDeep();
        return false;
    }
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        uint8_t v = 0;
        plist_get_bool_val(node, &v);
        out = v != 0;
        return true;
    }
    case PLIST_UINT: {
        uint64_t v = 0;
        plist_get_uint_val(node, &v);
        out = qint64(v);
        return true;
    }
    case PLIST_REAL: {
        double v = 0;
        plist_get_real_val(node, &v);
        out = v;
        return true;
    }
    case PLIST_STRING:
    case PLIST_KEY: {
        uint64_t length = 0;
        const char *text = plist_get_string_ptr(node, &length);
        out = text ? QString::fromUtf8(text, qsizetype(length)) : QString();
        return true;
    }
    case PLIST_DATA: {
        uint64_t length = 0;
        const char *bytes = plist_get_data_ptr(node, &length);
        out = bytes ? QByteArray(bytes, qsizetype(length)) : QByteArray();
        return true;
    }
    case PLIST_DATE: {
        int32_t sec = 0, usec = 0;
        plist_get_date_val(node, &sec, &usec);
        if (sec == std::numeric_limits<int32_t>::min()) { // libplist's clamp for years it cannot hold
            error = QStringLiteral("date out of range");
            return false;
        }
        out = QVariant::fromValue(Date::fromReferenceSeconds(double(sec) + double(usec) / 1e6));
        return true;
    }
    case PLIST_UID: {
        uint64_t v = 0;
        plist_get_uid_val(node, &v);
        out = QVariant::fromValue(Uid { v });
        return true;
    }
    case PLIST_ARRAY: {
        QVariantList list;
        const uint32_t size = plist_array_get_size(node);
        for (uint32_t i = 0; i < size; ++i) {
            QVariant item;
            if (!fromNode(plist_array_get_item(node, i), depth + 1, item, error))
                return false;
            list.append(item);
        }
        out = list;
        return true;
    }
    case PLIST_DICT: {
        QVariantMap map;
        plist_dict_iter it = nullptr;
        plist_dict_new_iter(node, &it);
        bool ok = true;
        while (ok && it) {
            char *key = nullptr;
            plist_t item = nullptr;
            plist_dict_next_item(node, it, &key, &item);
            if (!item) {
                free(key);
                break;
            }
            QVariant v;
            ok = fromNode(item, depth + 1, v, error);
            if (ok)
                map.insert(QString::fromUtf8(key), v);
            free(key);
        }
        free(it);
        out = map;
        return ok;
    }
    default:
        error = QStringLiteral("unknown XML element");
        return false;
    }
}

QVariant readXml(const QByteArray &data, QString *error)
{
    if (xmlNesting(data) > kMaxDepth + 1) {
        setError(error, tooDeep());
        return {};
    }
    plist_t root = nullptr;
    {
        CNumericLocale c;
        plist_from_xml(data.constData(), uint32_t(data.size()), &root);
    }
    if (!root) {
        setError(error, QStringLiteral("not a valid XML property list"));
        return {};
    }
    QVariant out;
    QString reason;
    const bool ok = fromNode(root, 0, out, reason);
    plist_free(root);
    if (!ok) {
        setError(error, reason);
        return {};
    }
    return out;
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

QByteArray write(const QVariant &root, Format format, QString *error)
{
    if (format == Format::Binary)
        return BinaryWriter().write(root, error);
    return XmlWriter().write(root, error);
}

QVariant read(const QByteArray &data, QString *error)
{
    if (data.isEmpty()) {
        setError(error, QStringLiteral("empty property list"));
        return {};
    }
    if (data.size() > kMaxInput) {
        setError(error, QStringLiteral("property list too large"));
        return {};
    }
    if (data.startsWith("bplist")) {
        if (!data.startsWith("bplist00")) {
            setError(error, QStringLiteral("unsupported binary property list version"));
            return {};
        }
        return BinaryReader(data).read(error);
    }
    qsizetype start = data.startsWith("\xEF\xBB\xBF") ? 3 : 0;
    while (start < data.size() && QChar::isSpace(uchar(data.at(start))))
        ++start;
    if (start >= data.size() || data.at(start) != '<') {
        setError(error, QStringLiteral("not a property list"));
        return {};
    }
    return readXml(data, error);
}

bool writeFile(const QString &path, const QVariant &root, Format format, QString *error)
{
    const QByteArray data = write(root, format, error);
    if (data.isEmpty())
        return false;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size() || !file.commit()) {
        setError(error, QStringLiteral("cannot write %1: %2").arg(path, file.errorString()));
        return false;
    }
    return true;
}

QVariant readFile(const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        setError(error, QStringLiteral("cannot open %1: %2").arg(path, file.errorString()));
        return {};
    }
    if (file.size() > kMaxInput) {
        setError(error, QStringLiteral("property list too large"));
        return {};
    }
    return read(file.readAll(), error);
}

} // namespace tabo::plist

#include "store/BinaryPlist.h"

#include "base/Date.h"
#include "store/PlistDetail.h"

#include <QCoreApplication>
#include <algorithm>
#include <bit>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(BinaryPlist)
};
} // namespace

namespace tabo::plist::detail {

namespace {

int bytesFor(quint64 v)
{
    return v <= 0xFF ? 1 : v <= 0xFFFF ? 2 : v <= 0xFFFFFFFFu ? 4 : 8;
}

void appendBigEndian(QByteArray &out, quint64 v, int size)
{
    for (int i = size - 1; i >= 0; --i)
        out.append(char((v >> (8 * i)) & 0xFF));
}

} // namespace

// --- binary writer --------------------------------------------------------

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
        return fail(Tr::tr("cannot write a value of type %1")
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
            return fail(Tr::tr("invalid date"));
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

Result<QByteArray> BinaryWriter::write(const QVariant &root)
{
    if (add(root, 0) < 0)
        return Error::file(m_error);
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

Result<QVariant> BinaryReader::read()
{
    if (m_size < 8 + 2 + 32) {
        fail(Tr::tr("truncated binary property list"));
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
            fail(Tr::tr("damaged binary property list trailer"));
        else {
            m_state.assign(m_count, 0);
            QVariant root = object(top, 0);
            if (m_error.isEmpty())
                return root;
        }
    }
    return Error::file(m_error);
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
        return fail(Tr::tr("cyclic object reference"));
    if (m_state[index] == 2) {
        m_lastWeight = m_weights.value(index);
        return m_containers.value(index);
    }
    quint64 pos = bigEndian(m_tableOffset + index * quint64(m_offsetSize), m_offsetSize);
    if (pos < 8 || pos >= m_tableOffset)
        return fail(Tr::tr("object offset out of range"));
    const int marker = m_data[pos++];
    const int type = marker >> 4;
    const int info = marker & 0xF;
    std::optional<QVariant> value;
    if (type == 0xA || type == 0xC || type == 0xD) {
        quint64 count = 0;
        if (!readCount(pos, info, count))
            return fail(Tr::tr("damaged length"));
        return container(index, pos, type == 0xD, count, depth);
    }
    value = type >= 0x4 && type <= 0x7 ? text(type, info, pos) : scalar(type, info, pos);
    if (value)
        return *value;
    return fail(Tr::tr("unknown object type 0x%1").arg(marker, 2, 16, QLatin1Char('0')));
}

std::optional<QVariant> BinaryReader::scalar(int type, int info, quint64 pos)
{
    const QString truncated = Tr::tr("object extends past the data");
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
    case 0x8:
        if (info > 7)
            break;
        if (!fits(pos, quint64(info) + 1))
            return fail(truncated);
        return QVariant::fromValue(Uid { bigEndian(pos, info + 1) });
    default:
        break;
    }
    return std::nullopt;
}

// Data (0x4), ASCII (0x5), UTF-16 (0x6) and UTF-8 (0x7) strings.
QVariant BinaryReader::text(int type, int info, quint64 pos)
{
    quint64 count = 0;
    if (!readCount(pos, info, count))
        return fail(Tr::tr("damaged length"));
    const quint64 unit = type == 0x6 ? 2 : 1;
    if (count > (m_tableOffset - std::min(pos, m_tableOffset)) / unit)
        return fail(Tr::tr("object extends past the data"));
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

QVariant BinaryReader::container(quint64 index, quint64 pos, bool dictionary, quint64 count, int depth)
{
    const quint64 refs = dictionary ? 2 : 1;
    if (count > (m_tableOffset - std::min(pos, m_tableOffset)) / quint64(m_refSize) / refs)
        return fail(Tr::tr("element count larger than the data"));
    m_state[index] = 1;
    quint64 weight = 1;
    QVariantList items;
    items.reserve(qsizetype(count * refs));
    for (quint64 i = 0; i < count * refs; ++i) {
        const quint64 ref = bigEndian(pos + i * quint64(m_refSize), m_refSize);
        if (ref >= m_count)
            return fail(Tr::tr("object reference out of range"));
        items.append(object(ref, depth + 1));
        if (!m_error.isEmpty())
            return {};
        weight += m_lastWeight;
        if (weight > m_maxWeight)
            return fail(Tr::tr("too many values"));
    }
    QVariant result;
    if (dictionary) {
        QVariantMap map;
        for (quint64 i = 0; i < count; ++i) {
            const QVariant &key = items.at(qsizetype(i));
            if (key.typeId() != QMetaType::QString)
                return fail(Tr::tr("dictionary key is not a string"));
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

} // namespace tabo::plist::detail

#pragma once

#include "store/PropertyList.h"

#include <QHash>
#include <QList>

#include <optional>
#include <vector>

// The bplist00 format, written and read by hand so that reals and dates keep
// every bit and hostile object graphs stay bounded.

namespace tabo::plist::detail {

class BinaryWriter
{
public:
    Result<QByteArray> write(const QVariant &root);

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

class BinaryReader
{
public:
    explicit BinaryReader(const QByteArray &data)
        : m_data(reinterpret_cast<const uchar *>(data.constData()))
        , m_size(quint64(data.size()))
        , m_maxWeight(std::max<quint64>(quint64(1) << 20, 16 * m_size))
    {
    }
    Result<QVariant> read();

private:
    QVariant object(quint64 index, int depth);
    QVariant container(quint64 index, quint64 pos, bool dictionary, quint64 count, int depth);
    // Numbers, booleans, dates and UIDs; nothing for a marker that is none.
    std::optional<QVariant> scalar(int type, int info, quint64 pos);
    QVariant text(int type, int info, quint64 pos);
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

} // namespace tabo::plist::detail

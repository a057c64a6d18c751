#include "cli/JsonWriter.h"

#include "domain/Calculator.h"
#include "domain/Record.h"

#include <QStringList>

#include <QCoreApplication>
#include <charconv>
#include <cmath>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(JsonWriter)
};
} // namespace

namespace tabo::cli {

namespace {

template<typename T>
QString shortest(T v)
{
    if (std::isnan(v))
        return QStringLiteral("NaN");
    if (std::isinf(v))
        return v > 0 ? QStringLiteral("Infinity") : QStringLiteral("-Infinity");
    char buf[64];
    const auto res = std::to_chars(buf, buf + sizeof buf, v);
    return QString::fromLatin1(buf, res.ptr - buf);
}

QStringList fields(const Record &record)
{
    QStringList out;
    const auto &attrs = record.desc().attributes;
    for (int i = 0; i < int(attrs.size()); ++i)
        out << JsonWriter::string(attrs[i].name) + QStringLiteral(": ") + JsonWriter::attribute(record, i);
    return out;
}

} // namespace

QString JsonWriter::numberText(double v)
{
    return shortest(v);
}

QString JsonWriter::number(double v)
{
    return std::isfinite(v) ? shortest(v) : string(shortest(v));
}

QString JsonWriter::number(float v)
{
    return std::isfinite(v) ? shortest(v) : string(shortest(v));
}

QString JsonWriter::string(const QString &s)
{
    QString out;
    out.reserve(s.size() + 2);
    out += QLatin1Char('"');
    for (const QChar c : s) {
        switch (c.unicode()) {
        case '"': out += QLatin1String("\\\""); break;
        case '\\': out += QLatin1String("\\\\"); break;
        case '\n': out += QLatin1String("\\n"); break;
        case '\r': out += QLatin1String("\\r"); break;
        case '\t': out += QLatin1String("\\t"); break;
        case '\b': out += QLatin1String("\\b"); break;
        case '\f': out += QLatin1String("\\f"); break;
        default:
            if (c.unicode() < 0x20)
                out += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
            else
                out += c;
        }
    }
    out += QLatin1Char('"');
    return out;
}

QString JsonWriter::attribute(const Record &record, int attr)
{
    if (record.isNull(attr))
        return QStringLiteral("null");
    switch (record.desc().attributes[attr].type) {
    case AttrType::Text: return string(record.text(attr));
    case AttrType::Date: return string(record.date(attr).toIso8601());
    case AttrType::Bool:
        if (std::isnan(record.num(attr)))
            return string(QStringLiteral("NaN"));
        return record.boolean(attr) ? QStringLiteral("true") : QStringLiteral("false");
    case AttrType::Int:
    case AttrType::Double:
    case AttrType::Float: return number(record.num(attr));
    }
    return QStringLiteral("null");
}

QString JsonWriter::record(const Record &record)
{
    return QLatin1Char('{') + fields(record).join(QStringLiteral(", ")) + QLatin1Char('}');
}

QString JsonWriter::document(const Record &document)
{
    QStringList items;
    for (const Record *item : document.toMany(Invoice::items))
        items << QStringLiteral("  ") + record(*item);
    QStringList all = fields(document);
    all << string(QStringLiteral("items")) + QStringLiteral(": ")
               + (items.isEmpty() ? QStringLiteral("[]")
                                  : QStringLiteral("[\n") + items.join(QStringLiteral(",\n")) + QStringLiteral("\n]"));
    return QLatin1Char('{') + all.join(QStringLiteral(", ")) + QLatin1Char('}');
}

QString JsonWriter::summary(const Summary &s)
{
    return QStringLiteral("{\"invoiceCount\": %1, \"quoteCount\": %2, \"invoiceCountForNumber\": %3, "
                          "\"totalAmount\": %4, \"paidAmount\": %5, \"dueAmount\": %6}")
        .arg(s.invoiceCount)
        .arg(s.quoteCount)
        .arg(s.invoiceCountForNumber)
        .arg(number(s.totalAmount), number(s.paidAmount), number(s.dueAmount));
}

} // namespace tabo::cli

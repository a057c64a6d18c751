#include "reports/Report.h"

#include "domain/Record.h"

#include <QDateTime>
#include <QHash>

#include <algorithm>
#include <climits>
#include <cmath>

namespace tabo::Report {

namespace {

QString clientOf(const Record &invoice)
{
    const QString name = invoice.text(Invoice::customerName).trimmed();
    if (!name.isEmpty())
        return name;
    return invoice.text(Invoice::address).section(QLatin1Char('\n'), 0, 0).trimmed();
}

int monthIndex(int year, int month)
{
    return year * 12 + (month - 1);
}

// The local month of a moment. Converting every document's date into the
// local time zone is what a report over many documents would spend its time
// on; the list comes sorted by date, so the month last found nearly always
// holds the next document too.
class MonthOf
{
public:
    int operator()(const Date &date)
    {
        const double secs = date.referenceSeconds();
        if (secs >= m_begin && secs < m_end)
            return m_index;
        const QDate day = date.toDateTime().toLocalTime().date();
        const QDate first(day.year(), day.month(), 1);
        m_begin = Date::fromDateTime(first.startOfDay()).referenceSeconds();
        m_end = Date::fromDateTime(first.addMonths(1).startOfDay()).referenceSeconds();
        m_index = monthIndex(day.year(), day.month());
        return m_index;
    }

private:
    double m_begin = 0;
    double m_end = 0; // empty until the first date
    int m_index = 0;
};

} // namespace

ReportFigures compute(const QList<Record *> &arranged, const Range &range)
{
    ReportFigures f;
    QHash<int, ReportFigures::Month> months;
    QHash<QString, ReportFigures::Client> clients;
    MonthOf monthOf;
    int first = INT_MAX;
    int last = INT_MIN;
    for (const Record *doc : arranged) {
        if (doc->integer(Invoice::kind) != 1)
            continue;
        if (range) {
            // Both bounds count: an invoice dated on either is in.
            const double at = doc->num(Invoice::date);
            if (doc->isNull(Invoice::date) || at < range->first.referenceSeconds()
                || at > range->second.referenceSeconds())
                continue;
        }
        const float amount = float(doc->num(Invoice::amount));
        const float net = float(doc->num(Invoice::subAmount));
        float paidPart = 0;
        switch (doc->integer(Invoice::status)) {
        case 0:
            ++f.created;
            continue;
        case 1:
            ++f.sent;
            break;
        case 2:
            ++f.due;
            f.dueSum += float(doc->num(Invoice::dueAmount));
            break;
        case 3:
            ++f.paid;
            paidPart = float(doc->num(Invoice::paidAmount));
            f.paidSum += paidPart;
            break;
        case 4:
            ++f.partial;
            f.dueSum += float(doc->num(Invoice::dueAmount));
            paidPart = float(doc->num(Invoice::paidAmount));
            f.paidSum += paidPart;
            break;
        default:
            continue;
        }
        f.total += amount;
        f.totalNet += net;

        if (!doc->isNull(Invoice::date)) {
            const int index = monthOf(doc->date(Invoice::date));
            ReportFigures::Month &m = months[index];
            m.gross += amount;
            m.net += net;
            m.paid += paidPart;
            m.open += amount - paidPart;
            first = std::min(first, index);
            last = std::max(last, index);
        }
        const QString client = clientOf(*doc);
        if (!client.isEmpty()) {
            ReportFigures::Client &c = clients[client];
            c.name = client;
            c.gross += amount;
            ++c.invoices;
        }
    }
    if (const qint64 n = f.invoices(); n > 0) {
        f.average = f.total / float(n);
        f.averageNet = f.totalNet / float(n);
    }
    // Every month of the span, the quiet ones too: a chart with gaps left out
    // would read as steady business.
    for (int index = first; first != INT_MAX && index <= last; ++index) {
        ReportFigures::Month m = months.value(index);
        m.year = index / 12;
        m.month = index % 12 + 1;
        f.months << m;
    }
    f.topClients = clients.values();
    std::sort(f.topClients.begin(), f.topClients.end(), [](const auto &a, const auto &b) {
        return a.gross != b.gross ? a.gross > b.gross : a.name < b.name;
    });
    if (f.topClients.size() > 5)
        f.topClients.resize(5);
    return f;
}

QString wholeNumber(float value)
{
    if (!std::isfinite(value))
        return QStringLiteral("0");
    return QString::number(qint64(std::trunc(double(value))));
}

QList<std::pair<QString, QVariant>> placeholderValues(const ReportFigures &f)
{
    const auto whole = [](float v) { return QVariant(wholeNumber(v).toLongLong()); };
    return {
        {QStringLiteral("INVOICES"), f.invoices()},
        {QStringLiteral("CREATED"), f.created},
        {QStringLiteral("SENT"), f.sent},
        {QStringLiteral("DUE"), f.due},
        {QStringLiteral("PAID"), f.paid},
        {QStringLiteral("FLOATTOTAL"), whole(f.total)},
        {QStringLiteral("FLOATTOTALNET"), whole(f.totalNet)},
        {QStringLiteral("FLOATDUE"), whole(f.dueSum)},
        {QStringLiteral("FLOATPAID"), whole(f.paidSum)},
        {QStringLiteral("FLOATAVERAGE"), whole(f.average)},
        {QStringLiteral("FLOATAVERAGENET"), whole(f.averageNet)},
    };
}

} // namespace tabo::Report

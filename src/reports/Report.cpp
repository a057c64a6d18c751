#include "reports/Report.h"

#include "domain/Contacts.h"
#include "domain/Record.h"

#include <QDateTime>
#include <QFile>
#include <QHash>

#include <QCoreApplication>
#include <algorithm>
#include <climits>
#include <cmath>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Report)
};
} // namespace

namespace tabo::Report {

namespace {

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
        const QString client = Contacts::clientOf(*doc);
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

QString chartTemplate()
{
    QFile file(QStringLiteral(":/reports/chart.html"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString chartScript()
{
    QFile file(QStringLiteral(":/reports/charts.js"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString page(const QString &templateText, const ReportFigures &f, const QString &script, const QString &comment,
             const QLocale &locale)
{
    if (templateText.isEmpty())
        return QString();
    const auto amount = [&](float v) { return locale.toString(double(v), 'f', 2); };
    QString months;
    float monthsMax = 0;
    for (const ReportFigures::Month &m : f.months)
        monthsMax = std::max(monthsMax, m.gross);
    for (const ReportFigures::Month &m : f.months) {
        months += QStringLiteral("<tr><th>%1-%2</th><td><div class=\"stack\" style=\"--v: %3\">"
                                 "<span class=\"paid\" style=\"flex: %4\"></span>"
                                 "<span class=\"open\" style=\"flex: %5\"></span></div></td>"
                                 "<td class=\"num\">%6<br><small>%7</small></td></tr>")
                      .arg(m.year)
                      .arg(m.month, 2, 10, QLatin1Char('0'))
                      .arg(wholeNumber(m.gross), wholeNumber(std::max(m.paid, 0.0f)),
                           wholeNumber(std::max(m.open, 0.0f)), amount(m.gross), amount(m.net));
    }
    QString clients;
    for (const ReportFigures::Client &c : f.topClients) {
        clients += QStringLiteral("<tr><th>%1</th><td class=\"num\">%2</td><td class=\"num\">%3</td></tr>")
                       .arg(c.name.toHtmlEscaped(), amount(c.gross),
                           c.invoices == 1 ? Tr::tr("1 invoice") : QStringLiteral("%1 invoices").arg(c.invoices));
    }
    // Longer names first, so "%FLOATTOTAL%" does not eat "%FLOATTOTALNET%".
    const std::pair<QString, QString> values[] = {
        { QStringLiteral("%LOCINVOICES%"), Tr::tr("Invoices") },
        { QStringLiteral("%LOCAVERAGE%"), Tr::tr("Average") },
        { QStringLiteral("%LOCTOTALUP%"), QStringLiteral("TOTAL") },
        { QStringLiteral("%LOCTOTAL%"), Tr::tr("Total") },
        { QStringLiteral("%LOCSENT%"), Tr::tr("Sent") },
        { QStringLiteral("%LOCDUEUP%"), QStringLiteral("DUE") },
        { QStringLiteral("%LOCDUE%"), Tr::tr("Due") },
        { QStringLiteral("%LOCPAIDUP%"), QStringLiteral("PAID") },
        { QStringLiteral("%LOCPAID%"), Tr::tr("Paid") },
        { QStringLiteral("%LOCAVERAGEUP%"), QStringLiteral("AVERAGE") },
        { QStringLiteral("%FLOATTOTALNETCOMMA%"), amount(f.totalNet) },
        { QStringLiteral("%FLOATTOTALCOMMA%"), amount(f.total) },
        { QStringLiteral("%FLOATDUECOMMA%"), amount(f.dueSum) },
        { QStringLiteral("%FLOATPAIDCOMMA%"), amount(f.paidSum) },
        { QStringLiteral("%FLOATAVERAGENETCOMMA%"), amount(f.averageNet) },
        { QStringLiteral("%FLOATAVERAGECOMMA%"), amount(f.average) },
        { QStringLiteral("%FLOATTOTALNET%"), wholeNumber(f.totalNet) },
        { QStringLiteral("%FLOATTOTAL%"), wholeNumber(f.total) },
        { QStringLiteral("%FLOATDUE%"), wholeNumber(f.dueSum) },
        { QStringLiteral("%FLOATPAID%"), wholeNumber(f.paidSum) },
        { QStringLiteral("%FLOATAVERAGENET%"), wholeNumber(f.averageNet) },
        { QStringLiteral("%FLOATAVERAGE%"), wholeNumber(f.average) },
        { QStringLiteral("%INVOICES%"), QString::number(f.invoices()) },
        { QStringLiteral("%CREATED%"), QString::number(f.created) },
        { QStringLiteral("%SENT%"), QString::number(f.sent) },
        { QStringLiteral("%DUE%"), QString::number(f.due) },
        { QStringLiteral("%PAID%"), QString::number(f.paid) },
        { QStringLiteral("%MONTHSMAX%"), wholeNumber(monthsMax) },
        { QStringLiteral("%MONTHROWS%"), months },
        { QStringLiteral("%CLIENTROWS%"), clients },
        { QStringLiteral("%REPORTCOMMENT%"), comment.toHtmlEscaped() },
    };
    QString out = templateText;
    for (const auto &[name, value] : values)
        out.replace(name, value);
    // The script last: nothing it holds is taken for a placeholder.
    out.replace(QStringLiteral("%JSSCRIPT%"), script);
    return out;
}

} // namespace tabo::Report

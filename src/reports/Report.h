#pragma once

#include "base/Date.h"

#include <QList>
#include <QLocale>
#include <QString>
#include <QVariant>

#include <optional>
#include <utility>

namespace tabo {

class Record;

// The figures of a report over the invoices the main list shows (after its
// search and filter), optionally limited to a date range with both bounds
// included. Sums are single precision, as the summary's are.
struct ReportFigures
{
    qint64 created = 0; // status 0: counted, not summed
    qint64 sent = 0;
    qint64 due = 0;     // status 2 only
    qint64 paid = 0;    // status 3 only
    qint64 partial = 0; // status 4: only in the number of invoices and the sums
    float total = 0;
    float totalNet = 0;
    float dueSum = 0;
    float paidSum = 0;
    float average = 0;    // 0 when no invoice counts
    float averageNet = 0;

    qint64 invoices() const { return sent + due + paid + partial; }

    // Beyond the page's placeholders: revenue per month of the range shown
    // (gross and net, split into paid and open) and the clients with the most.
    struct Month
    {
        int year = 0;
        int month = 0; // 1..12
        float gross = 0;
        float net = 0;
        float paid = 0;
        float open = 0;
    };
    QList<Month> months; // ascending, every month from the first to the last
    struct Client
    {
        QString name;
        float gross = 0;
        qint64 invoices = 0;
    };
    QList<Client> topClients; // at most five, most revenue first
};

namespace Report {

using Range = std::optional<std::pair<Date, Date>>;

ReportFigures compute(const QList<Record *> &arranged, const Range &range);
// The page's values by placeholder name without the percent signs, as
// numbers (INVOICES, CREATED, SENT, DUE, PAID, FLOATTOTAL … FLOATAVERAGENET).
QList<std::pair<QString, QVariant>> placeholderValues(const ReportFigures &figures);
// A sum for the chart: truncated to a whole number, no grouping, no decimals.
QString wholeNumber(float value);

// The report page: the "chart" template with every placeholder filled, the
// chart script in place of %JSSCRIPT%, amounts for people in `locale`, and
// `comment` as %REPORTCOMMENT%. An empty template gives an empty page.
QString page(const QString &templateText, const ReportFigures &figures, const QString &script,
             const QString &comment, const QLocale &locale);
// The template and script kept with the application.
QString chartTemplate();
QString chartScript();

} // namespace Report

} // namespace tabo

#include "domain/Recurrence.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Recurrence)
};
} // namespace

namespace tabo {

namespace {

// Twenty years of weekly invoices; a larger interval or count is a typing error.
constexpr int kMaxEvery = 1040;

} // namespace

QDate Recurrence::occurrence(int n) const
{
    if (n < 0 || !start.isValid() || every <= 0 || (count > 0 && n >= count))
        return {};
    const QDate day = unit == Unit::Month ? start.addMonths(qint64(every) * n) : start.addDays(7LL * every * n);
    if (until.isValid() && day > until)
        return {};
    return day;
}

Result<Recurrence> Recurrence::make(const QString &text, QDate start, QDate until, int count)
{
    Recurrence r;
    r.start = start;
    r.until = until;
    r.count = count;
    const QString every = text.simplified().toLower();
    static const QRegularExpression counted(QStringLiteral("^(-?\\d+)\\s*(\\S+)$"));
    const QRegularExpressionMatch m = counted.match(every);
    const int n = m.hasMatch() ? m.captured(1).toInt() : 1;
    const QString unit = m.hasMatch() ? m.captured(2) : every;
    const auto is = [&unit](const QStringList &words) { return words.contains(unit); };
    if (is({ QStringLiteral("month"), QStringLiteral("months"), Tr::tr("month"), Tr::tr("months") })) {
        r.every = n;
    } else if (is({ QStringLiteral("quarter"), QStringLiteral("quarters"), Tr::tr("quarter"), Tr::tr("quarters") })) {
        r.every = 3 * n;
    } else if (is({ QStringLiteral("year"), QStringLiteral("years"), Tr::tr("year"), Tr::tr("years") })) {
        r.every = 12 * n;
    } else if (is({ QStringLiteral("week"), QStringLiteral("weeks"), Tr::tr("week"), Tr::tr("weeks") })) {
        r.unit = Unit::Week;
        r.every = n;
    } else {
        return Error::input(
            Tr::tr("“%1” is no interval: say month, quarter, year or a number of weeks (“2 weeks”).").arg(text));
    }
    if (const Error e = r.check())
        return e;
    return r;
}

Error Recurrence::check() const
{
    if (every <= 0 || every > kMaxEvery)
        return Error::input(Tr::tr("An invoice cannot repeat every %1 %2; the interval must be at least 1.")
                                .arg(every)
                                .arg(unit == Unit::Week ? Tr::tr("weeks") : Tr::tr("months")));
    if (!start.isValid())
        return Error::input(Tr::tr("A repeated invoice needs the day of its first invoice."));
    if (until.isValid() && until < start)
        return Error::input(Tr::tr("The last day (%1) lies before the first (%2).")
                                .arg(until.toString(Qt::ISODate), start.toString(Qt::ISODate)));
    if (count < 0)
        return Error::input(Tr::tr("The number of invoices cannot be negative."));
    return {};
}

QString Recurrence::interval() const
{
    if (unit == Unit::Week)
        return every == 1 ? QStringLiteral("week") : QStringLiteral("%1 weeks").arg(every);
    if (every == 1)
        return QStringLiteral("month");
    if (every == 3)
        return QStringLiteral("quarter");
    if (every == 12)
        return QStringLiteral("year");
    return QStringLiteral("%1 months").arg(every);
}

QString Recurrence::describe() const
{
    if (unit == Unit::Week)
        return every == 1 ? Tr::tr("every week") : Tr::tr("every %1 weeks").arg(every);
    switch (every) {
    case 1:
        return Tr::tr("every month");
    case 3:
        return Tr::tr("every quarter");
    case 12:
        return Tr::tr("every year");
    default:
        return Tr::tr("every %1 months").arg(every);
    }
}

QString Recurrence::periodLabel(QDate day, const QLocale &locale) const
{
    if (unit == Unit::Week)
        return QStringLiteral("%1 – %2")
            .arg(locale.toString(day, QLocale::ShortFormat),
                locale.toString(day.addDays(7LL * every - 1), QLocale::ShortFormat));
    const QDate first(day.year(), day.month(), 1);
    const QDate last = first.addMonths(every - 1);
    const auto month = [&locale](QDate d) { return locale.standaloneMonthName(d.month(), QLocale::LongFormat); };
    if (every == 1)
        return QStringLiteral("%1 %2").arg(month(first)).arg(first.year());
    if (every == 12 && first.month() == 1)
        return QString::number(first.year());
    if (first.year() == last.year())
        return QStringLiteral("%1 – %2 %3").arg(month(first), month(last)).arg(last.year());
    return QStringLiteral("%1 %2 – %3 %4").arg(month(first)).arg(first.year()).arg(month(last)).arg(last.year());
}

} // namespace tabo

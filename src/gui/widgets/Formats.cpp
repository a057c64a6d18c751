#include "gui/widgets/Formats.h"

#include "base/Date.h"

#include <QDateTime>
#include <QLocale>
#include <QString>

#include <cmath>

namespace tabo::Formats {

QString money(double amount, const QString &currency)
{
    const QString number = plainMoney(amount);
    return currency.isEmpty() ? number : number + QLatin1Char(' ') + currency;
}

QString quantity(double value)
{
    return QLocale().toString(value, 'f', QLocale::FloatingPointShortest);
}

QString plainMoney(double amount)
{
    // -0.00 after a rounding step would look like a refund.
    if (std::fabs(amount) < 0.005)
        amount = 0.0;
    return QLocale().toString(amount, 'f', 2);
}

QString percent(double fraction)
{
    // Rates are stored in single precision: 0.0725f reads 7.2499999…
    const double rounded = std::round(fraction * 100.0 * 10000.0) / 10000.0;
    return QLocale().toString(rounded, 'f', QLocale::FloatingPointShortest) + QStringLiteral(" %");
}

QString date(const Date &date)
{
    if (!date.isValid())
        return {};
    return QLocale().toString(date.toDateTime().toLocalTime().date(), QLocale::ShortFormat);
}

QString dateFieldFormat()
{
    // Two-digit years are ambiguous in a field one types into.
    QString format = QLocale().dateFormat(QLocale::ShortFormat);
    if (!format.contains(QLatin1String("yyyy")))
        format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    return format;
}

} // namespace tabo::Formats

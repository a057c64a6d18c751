#include "gui/Formats.h"

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

} // namespace tabo::Formats

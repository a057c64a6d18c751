#include "domain/CompanyFooter.h"

#include "prefs/Preferences.h"

#include <QStringList>

namespace tabo::CompanyFooter {

namespace {

using P = Preferences;

struct Token
{
    QLatin1StringView name;
    P::Key key;
};

constexpr Token kTokens[] = {
    {QLatin1StringView("%NAME%"), P::prefsName},          {QLatin1StringView("%STREET%"), P::prefsStreet},
    {QLatin1StringView("%POSTCODE%"), P::prefsPostcode},  {QLatin1StringView("%CITY%"), P::prefsCity},
    {QLatin1StringView("%PHONE%"), P::prefsContactPhone},        {QLatin1StringView("%EMAIL%"), P::prefsContactEmail},
    {QLatin1StringView("%VATID%"), P::prefsVATID},        {QLatin1StringView("%TAXNUMBER%"), P::prefsTaxNumber},
    {QLatin1StringView("%BANK%"), P::prefsBankName},          {QLatin1StringView("%IBAN%"), P::prefsIBAN},
    {QLatin1StringView("%BIC%"), P::prefsBIC},
};

const QString kJoint = QStringLiteral(" · ");

// The part filled in, or empty when it names details and all are empty.
QString fillPart(const QString &part, const Preferences &prefs)
{
    QString out = part;
    bool named = false;
    bool filled = false;
    for (const Token &t : kTokens) {
        if (!out.contains(t.name))
            continue;
        named = true;
        // One line per detail: a footer line must not break in the middle.
        const QString value = prefs.string(t.key).simplified();
        filled = filled || !value.isEmpty();
        out.replace(t.name, value);
    }
    if (named && !filled)
        return QString();
    return out.simplified();
}

} // namespace

QString compose(const QString &pattern, const Preferences &prefs)
{
    QStringList lines;
    for (const QString &line : pattern.split(QLatin1Char('\n'))) {
        QStringList parts;
        for (const QString &part : line.split(kJoint)) {
            const QString filled = fillPart(part, prefs);
            if (!filled.isEmpty())
                parts << filled;
        }
        if (!parts.isEmpty())
            lines << parts.join(kJoint);
    }
    return lines.join(QLatin1Char('\n'));
}

QString compose(const Preferences &prefs)
{
    return compose(prefs.string(P::tempFooterPattern), prefs);
}

} // namespace tabo::CompanyFooter

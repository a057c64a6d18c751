#include "domain/UnitCodes.h"

#include <QHash>
#include <QRegularExpression>

namespace tabo::UnitCodes {

namespace {

struct Unit
{
    const char *code;
    const char *shown;
    std::initializer_list<const char *> words; // lower case, without a final "."
};

// The words people write, in English, German, French and Spanish.
const Unit kUnits[] = {
    {"HUR", "h", {"h", "hr", "hrs", "hour", "hours", "std", "stunde", "stunden", "heure", "heures", "hora", "horas"}},
    {"MIN", "min", {"min", "mins", "minute", "minutes", "minuten", "minuto", "minutos"}},
    {"DAY", "day", {"d", "day", "days", "tag", "tage", "tg", "jour", "jours", "j", "día", "días", "dia", "dias"}},
    {"WEE", "week", {"wk", "week", "weeks", "woche", "wochen", "semaine", "semaines", "semana", "semanas"}},
    {"MON", "month", {"mo", "month", "months", "monat", "monate", "mois", "mes", "meses"}},
    {"ANN", "year", {"yr", "year", "years", "jahr", "jahre", "an", "ans", "année", "années", "año", "años"}},
    {"H87", "pc", {"pc", "pcs", "piece", "pieces", "stk", "stück", "st", "pièce", "pièces", "pce", "pieza", "piezas",
                   "ud", "uds", "unidad", "unidades"}},
    {"C62", "unit", {"unit", "units", "einheit", "einheiten", "unité", "unités", "x"}},
    {"LS", "flat rate", {"flat", "flat rate", "lump sum", "pauschal", "pauschale", "psch", "pausch", "forfait",
                         "forfaitaire", "global", "tanto alzado", "a tanto alzado"}},
    {"KMT", "km", {"km", "kilometer", "kilometre", "kilomètre", "kilómetro"}},
    {"MTR", "m", {"m", "meter", "metre", "mètre", "metro", "metros", "lfm"}},
    {"MTK", "m²", {"m2", "m²", "qm", "sqm"}},
    {"MTQ", "m³", {"m3", "m³", "cbm"}},
    {"KGM", "kg", {"kg", "kilo", "kilogramm", "kilogram", "kilogramme", "kilogramo"}},
    {"GRM", "g", {"g", "gramm", "gram", "gramme", "gramo"}},
    {"TNE", "t", {"t", "tonne", "tonnes", "ton", "tonelada"}},
    {"LTR", "l", {"l", "liter", "litre", "litres", "litro", "litros"}},
    {"SET", "set", {"set", "sets", "satz", "jeu", "juego"}},
    {"PR", "pair", {"pair", "pairs", "paar", "paire", "par"}},
    {"E48", "service", {"service", "services", "leistung", "prestation", "servicio"}},
};

const QHash<QString, const Unit *> &byWord()
{
    static const QHash<QString, const Unit *> table = [] {
        QHash<QString, const Unit *> t;
        for (const Unit &u : kUnits)
            for (const char *w : u.words)
                t.insert(QString::fromUtf8(w), &u);
        return t;
    }();
    return table;
}

} // namespace

QString fromUnitText(const QString &unit)
{
    QString word = unit.trimmed().toLower();
    while (word.endsWith(QLatin1Char('.')))
        word.chop(1);
    word = word.simplified();
    if (const Unit *u = byWord().value(word))
        return QString::fromLatin1(u->code);
    if (isCode(unit.trimmed()) && unit.trimmed() == unit.trimmed().toUpper() && unit.trimmed().size() == 3)
        return unit.trimmed(); // typed as the code itself
    return QStringLiteral("C62");
}

QString forLine(const QString &unitCode, const QString &unit)
{
    return unitCode.trimmed().isEmpty() ? fromUnitText(unit) : unitCode.trimmed().toUpper();
}

bool isCode(const QString &text)
{
    static const QRegularExpression code(QStringLiteral("^[A-Za-z0-9]{1,3}$"));
    return code.match(text.trimmed()).hasMatch();
}

QString displayName(const QString &code)
{
    for (const Unit &u : kUnits)
        if (code == QLatin1String(u.code))
            return QString::fromUtf8(u.shown);
    return code;
}

} // namespace tabo::UnitCodes

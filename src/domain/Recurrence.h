#pragma once

#include "base/Result.h"

#include <QDate>
#include <QLocale>
#include <QString>

namespace tabo {

// When a repeated invoice is due: every N months (a quarter is 3, a year
// 12) or every N weeks from `start`, until a last day or for a number of
// times. Each date is counted from the start, so a schedule on the 31st
// falls on the 30th or the 28th in shorter months and on the 31st again
// after them.
struct Recurrence
{
    enum class Unit { Month, Week };
    Unit unit = Unit::Month;
    int every = 1;
    QDate start;
    QDate until; // invalid: no last day
    int count = 0; // 0: no limit

    // The date of the n-th invoice (n from 0), or an invalid date when the
    // schedule has ended before it.
    QDate occurrence(int n) const;

    // "month", "quarter", "year", "2 months", "N weeks" (English or as the
    // interface says it); refused with a sentence when unreadable, zero, or
    // the end lies before the start.
    static Result<Recurrence> make(const QString &every, QDate start, QDate until, int count);
    Error check() const;

    // The words `make` reads back: "month", "quarter", "year", "N months",
    // "N weeks".
    QString interval() const;
    // "every month", "every 2 weeks", in the interface's language.
    QString describe() const;
    // The period an invoice of `day` bills, for %PERIOD%: "November 2026",
    // "October – December 2026", "2027", "16.11.26 – 29.11.26".
    QString periodLabel(QDate day, const QLocale &locale) const;
};

} // namespace tabo

#include "domain/Numbering.h"

#include <limits>

#include "domain/Calculator.h"
#include "prefs/Preferences.h"

#include <QDateTime>

#include <unicode/locid.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <QCoreApplication>
#include <memory>
#include <string>
#include <vector>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Numbering)
};
} // namespace

namespace tabo::Numbering {

namespace {

icu::UnicodeString toIcu(const QString &s)
{
    return icu::UnicodeString(reinterpret_cast<const UChar *>(s.utf16()), int32_t(s.size()));
}

QString fromIcu(const icu::UnicodeString &s)
{
    return QString(reinterpret_cast<const QChar *>(s.getBuffer()), s.length());
}

QString numberString(const Preferences &prefs, Preferences::Key pattern, Preferences::Key counter,
                     qint64 extra, Date now)
{
    // A counter set near the 64-bit end stops there instead of wrapping to a
    // negative number.
    qint64 count = 0;
    if (__builtin_add_overflow(prefs.integer(counter), extra, &count))
        count = extra > 0 ? std::numeric_limits<qint64>::max() : std::numeric_limits<qint64>::min();
    return build(prefs.string(pattern), count, now);
}

// Building a SimpleDateFormat loads locale data and costs far more than
// formatting, and documents format several dates per render. The key holds the
// locale and zone too, so a changed default never serves a stale formatter.
// Per thread, because formatting uses the formatter's calendar.
struct CachedFormat
{
    icu::UnicodeString pattern;
    std::string locale;
    icu::UnicodeString zone;
    std::unique_ptr<icu::SimpleDateFormat> format;
};

const icu::SimpleDateFormat *formatterFor(const QString &pattern, const QString &region)
{
    constexpr std::size_t kCacheSize = 8;
    thread_local std::vector<CachedFormat> cache;

    const icu::UnicodeString icuPattern = toIcu(pattern);
    const icu::Locale locale = region.isEmpty() ? icu::Locale::getDefault()
                                                : icu::Locale::createCanonical(region.toUtf8().constData());
    std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createDefault());
    icu::UnicodeString zoneId;
    if (zone)
        zone->getID(zoneId);

    for (const CachedFormat &c : cache) {
        if (c.pattern == icuPattern && c.zone == zoneId && c.locale == locale.getName())
            return c.format.get();
    }

    UErrorCode status = U_ZERO_ERROR;
    auto format = std::make_unique<icu::SimpleDateFormat>(icuPattern, locale, status);
    if (U_FAILURE(status))
        return nullptr;
    if (zone)
        format->adoptTimeZone(zone.release());
    if (cache.size() >= kCacheSize)
        cache.erase(cache.begin());
    cache.push_back({icuPattern, locale.getName(), zoneId, std::move(format)});
    return cache.back().format.get();
}

} // namespace

QString build(const QString &pattern, qint64 count, Date today)
{
    const QDate day = today.isValid() ? today.toDateTime().toLocalTime().date() : QDate();
    const auto field = [&day](int value) { return day.isValid() ? QString::number(value) : QString(); };
    QString result = pattern;
    result.replace(QLatin1String("%COUNT%"), QString::number(count));
    result.replace(QLatin1String("%YEAR%"), field(day.year()));
    result.replace(QLatin1String("%MONTH%"), field(day.month()));
    result.replace(QLatin1String("%DAY%"), field(day.day()));
    return result;
}

QString invoiceNumberString(const Preferences &prefs, const Summary &summary, Date now)
{
    return numberString(prefs, Preferences::invPattern, Preferences::invCount,
                        1 + qint64(summary.invoiceCountForNumber), now);
}

QString quoteNumberString(const Preferences &prefs, const Summary &summary, Date now)
{
    return numberString(prefs, Preferences::quotPattern, Preferences::quotCount, 1 + qint64(summary.quoteCount), now);
}

QString convertedInvoiceNumberString(const Preferences &prefs, const Summary &summary, Date now)
{
    return numberString(prefs, Preferences::invPattern, Preferences::invCount, qint64(summary.invoiceCountForNumber),
                        now);
}

QString clientNumberString(const Preferences &prefs, qsizetype recentAddressCount, Date now)
{
    return numberString(prefs, Preferences::clientPattern, Preferences::clientCount, 1 + qint64(recentAddressCount),
                        now);
}

QString patternRefusal(const QString &pattern)
{
    if (pattern.contains(QLatin1String("%COUNT%")))
        return {};
    return Tr::tr("The pattern needs %COUNT%, or every document gets the same number.");
}

QString patternDateString(const QString &datePattern, Date date, const QString &region)
{
    if (!date.isValid())
        return QString();
    QString pattern = datePattern;
    pattern.replace(QLatin1String("%MONTHSHORT%"), QLatin1String("MM"));
    pattern.replace(QLatin1String("%MONTHLONG%"), QLatin1String("MMMM"));
    pattern.replace(QLatin1String("%DAY%"), QLatin1String("dd"));
    pattern.replace(QLatin1String("%YEARSHORT%"), QLatin1String("yy"));
    pattern.replace(QLatin1String("%YEARLONG%"), QLatin1String("yyyy"));

    const icu::SimpleDateFormat *format = formatterFor(pattern, region);
    if (!format)
        return QString();
    icu::UnicodeString out;
    format->format(UDate(date.unixSeconds() * 1000.0), out);
    return fromIcu(out);
}

QString getPatternDateStringFromDate(const Preferences &prefs, Date date)
{
    return patternDateString(prefs.string(Preferences::prefsDatePattern), date, prefs.documentRegion());
}

} // namespace tabo::Numbering

#include "render/PaymentQr.h"

#include "domain/Record.h"
#include "prefs/Preferences.h"

#include <QRegularExpression>

#include <qrencode.h>

#include <cmath>
#include <memory>

namespace tabo::PaymentQr {

namespace {

// The standard counts characters: a cut inside a surrogate pair would leave
// half an emoji, which a banking app shows as "?".
QString firstCharacters(const QString &text, int count)
{
    const QList<uint> codePoints = text.toUcs4();
    if (codePoints.size() <= count)
        return text;
    return QString::fromUcs4(reinterpret_cast<const char32_t *>(codePoints.constData()), count);
}

} // namespace

using P = Preferences;

QString payload(const Record &invoice, const Preferences &prefs)
{
    const QString iban = prefs.string(P::prefsIBAN).remove(QRegularExpression(QStringLiteral("\\s"))).toUpper();
    if (iban.isEmpty() || prefs.string(P::prefsCurrencyCode).trimmed().toUpper() != QLatin1String("EUR"))
        return {};
    const double paid = invoice.num(Invoice::paidAmount);
    const double due = invoice.num(Invoice::amount) - (std::isfinite(paid) && paid > 0 ? paid : 0.0);
    // The standard's range: 0.01 to 999999999.99 euros.
    const qint64 cents = std::isfinite(due) ? std::llround(due * 100.0) : 0;
    if (cents < 1 || cents > 99999999999LL)
        return {};
    const QString bic = prefs.string(P::prefsBIC).remove(QRegularExpression(QStringLiteral("\\s"))).toUpper();
    const QStringList lines{QStringLiteral("BCD"),
                            QStringLiteral("002"),
                            QStringLiteral("1"), // UTF-8
                            QStringLiteral("SCT"),
                            bic,
                            firstCharacters(prefs.string(P::prefsName).simplified(), 70),
                            iban,
                            QStringLiteral("EUR%1.%2").arg(cents / 100).arg(cents % 100, 2, 10, QLatin1Char('0')),
                            QString(), // purpose
                            QString(), // structured reference
                            invoice.text(Invoice::number).simplified().left(140)};
    return lines.join(QLatin1Char('\n'));
}

QString svgOf(const QByteArray &text)
{
    const std::unique_ptr<QRcode, decltype(&QRcode_free)> code(
        QRcode_encodeData(int(text.size()), reinterpret_cast<const unsigned char *>(text.constData()), 0, QR_ECLEVEL_M),
        &QRcode_free);
    if (!code)
        return {};
    constexpr int quiet = 4;
    const int width = code->width;
    // One path of unit squares, a row's runs joined: small and exact.
    QString path;
    for (int y = 0; y < width; ++y) {
        for (int x = 0; x < width;) {
            if (!(code->data[y * width + x] & 1)) {
                ++x;
                continue;
            }
            int run = 1;
            while (x + run < width && (code->data[y * width + x + run] & 1))
                ++run;
            path += QStringLiteral("M%1 %2h%3v1h-%3z").arg(x + quiet).arg(y + quiet).arg(run);
            x += run;
        }
    }
    const int size = width + 2 * quiet;
    return QStringLiteral("<svg class=\"paymentqr\" xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 %1 %1\" "
                          "width=\"30mm\" height=\"30mm\" shape-rendering=\"crispEdges\"><rect width=\"%1\" "
                          "height=\"%1\" fill=\"#fff\"/><path fill=\"#000\" d=\"%2\"/></svg>")
        .arg(size)
        .arg(path);
}

QString svg(const Record &invoice, const Preferences &prefs)
{
    const QString text = payload(invoice, prefs);
    return text.isEmpty() ? QString() : svgOf(text.toUtf8());
}

} // namespace tabo::PaymentQr

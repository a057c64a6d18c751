#include "gui/widgets/Icons.h"

#include <QFont>
#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <QRadialGradient>

namespace tabo::Icons {

namespace {

const QColor kGlowLight(255, 214, 102);
const QColor kGlowDeep(232, 137, 28);

// Drawn on a 32-unit grid: a hand torch tilted to the upper right, its beam
// (only when glowing) leaving the head.
void paintTorch(QPainter &p, qreal size, bool glowing)
{
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 32.0, size / 32.0);
    p.translate(16, 16);
    p.rotate(38);
    p.scale(0.92, 0.92);
    p.translate(-16, -17);

    const QColor ink = QGuiApplication::palette().color(QPalette::WindowText);
    const QPolygonF head({ QPointF(8.5, 9), QPointF(23.5, 9), QPointF(20, 16.5), QPointF(12, 16.5) });
    const QRectF body(12, 16, 8, 15);

    if (glowing) {
        QRadialGradient beam(QPointF(16, 9), 11);
        beam.setColorAt(0, QColor(255, 214, 102, 235));
        beam.setColorAt(1, QColor(255, 214, 102, 0));
        p.setPen(Qt::NoPen);
        p.setBrush(beam);
        p.drawPolygon(QPolygonF({ QPointF(9, 8.5), QPointF(23, 8.5), QPointF(30, -1), QPointF(2, -1) }));
    }

    QPen outline(glowing ? kGlowDeep.darker(140) : ink, 1.8);
    outline.setJoinStyle(Qt::RoundJoin);
    p.setPen(outline);
    p.setBrush(glowing ? kGlowDeep : Qt::transparent);
    p.drawRoundedRect(body, 2, 2);
    p.setBrush(glowing ? kGlowLight : Qt::transparent);
    p.drawPolygon(head);
    // The lens: a bright rim when lit, a plain line otherwise.
    p.setPen(QPen(glowing ? QColor(255, 246, 214) : ink, 1.8, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(9.5, 9), QPointF(22.5, 9));
    p.setPen(Qt::NoPen);
    p.setBrush(glowing ? kGlowDeep.darker(150) : ink);
    p.drawRoundedRect(QRectF(14.6, 19.5, 2.8, 4.5), 1, 1);
}

} // namespace

QIcon torch(bool glowing)
{
    QIcon icon;
    for (int size : { 16, 22, 24, 32, 48, 64 }) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paintTorch(painter, size, glowing);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

QIcon themed(const QString &themeName, QChar letter, const QColor &tint)
{
    if (QIcon::hasThemeIcon(themeName))
        return QIcon::fromTheme(themeName);
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter p(&pixmap);
        p.setRenderHint(QPainter::Antialiasing);
        const qreal inset = size / 16.0;
        const QRectF tile(inset, inset, size - 2 * inset, size - 2 * inset);
        p.setPen(Qt::NoPen);
        p.setBrush(tint);
        p.drawRoundedRect(tile, size / 5.0, size / 5.0);
        QFont font = QGuiApplication::font();
        font.setBold(true);
        font.setPixelSize(int(size * 0.55));
        p.setFont(font);
        p.setPen(Qt::white);
        p.drawText(tile, Qt::AlignCenter, QString(letter));
        p.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace tabo::Icons

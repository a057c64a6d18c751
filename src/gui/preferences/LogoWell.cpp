#include "gui/preferences/LogoWell.h"

#include "app/AppController.h"
#include "app/Interaction.h"
#include "gui/widgets/HintLabel.h"
#include "prefs/Preferences.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QMimeData>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

namespace tabo {

LogoWell::LogoWell(AppController &app, QWidget *parent)
    : QWidget(parent)
    , m_app(app)
    , m_thumb(new QLabel)
    , m_remove(new QPushButton(tr("Remove")))
    , m_hint(new HintLabel)
{
    setObjectName(QStringLiteral("prefsLogo"));
    setAcceptDrops(true);
    m_thumb->setFixedSize(160, 80);
    m_thumb->setAlignment(Qt::AlignCenter);
    m_thumb->setFrameShape(QFrame::StyledPanel);
    auto *choose = new QPushButton(tr("Choose…"));
    connect(choose, &QPushButton::clicked, this, &LogoWell::choose);
    connect(m_remove, &QPushButton::clicked, this, &LogoWell::removeLogo);
    auto *buttons = new QVBoxLayout;
    buttons->addWidget(choose);
    buttons->addWidget(m_remove);
    buttons->addStretch();
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_thumb);
    row->addLayout(buttons);
    row->addStretch();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(row);
    column->addWidget(m_hint);
    reload();
}

void LogoWell::reload()
{
    QImage image;
    const QByteArray data = m_app.prefs().data(Preferences::prefsLogo);
    if (!data.isEmpty() && image.loadFromData(data)) {
        m_thumb->setPixmap(QPixmap::fromImage(
            image.scaled(m_thumb->size() - QSize(8, 8), Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    } else {
        m_thumb->setPixmap({});
        m_thumb->setText(data.isEmpty() ? tr("Drop an image here") : tr("The stored logo cannot be read"));
    }
    m_remove->setEnabled(!data.isEmpty());
}

bool LogoWell::setLogoFile(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (QFileInfo(path).size() > kMaxBytes) {
        m_hint->showMessage(tr("“%1” is larger than 10 MB; please use a smaller image.").arg(name));
        return false;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        m_hint->showMessage(tr("“%1” cannot be read.").arg(name));
        return false;
    }
    const QByteArray data = file.readAll();
    QImage image;
    if (!image.loadFromData(data) || image.isNull()) {
        m_hint->showMessage(tr("“%1” is not an image Tabo can read (PNG, JPEG, GIF, BMP or TIFF).").arg(name));
        return false;
    }
    m_hint->clearMessage();
    m_app.prefs().setData(Preferences::prefsLogo, data);
    reload();
    return true;
}

void LogoWell::removeLogo()
{
    m_app.prefs().remove(Preferences::prefsLogo);
    m_hint->clearMessage();
    reload();
}

void LogoWell::choose()
{
    Interaction::FileRequest request;
    request.title = tr("Choose Logo Image");
    request.extensions = {QStringLiteral("png"), QStringLiteral("jpg"), QStringLiteral("jpeg"), QStringLiteral("gif"),
                          QStringLiteral("bmp"), QStringLiteral("tif"), QStringLiteral("tiff")};
    const QString path = m_app.ui().openFile(request);
    if (!path.isEmpty())
        setLogoFile(path);
}

void LogoWell::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void LogoWell::dropEvent(QDropEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (!urls.isEmpty() && urls.first().isLocalFile() && setLogoFile(urls.first().toLocalFile()))
        event->acceptProposedAction();
}

} // namespace tabo

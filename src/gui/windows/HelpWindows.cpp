#include "gui/windows/HelpWindows.h"

#include "app/About.h"
#include "gui/widgets/ScreenFit.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace tabo {

namespace {

QDialogButtonBox *closeButton(QDialog *dialog)
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    return buttons;
}

QString plain(QString text)
{
    // "&File" and "Print…" as the person reads them in the menu.
    text.remove(QRegularExpression(QStringLiteral("&(?!&)")));
    return text;
}

void addCommands(QTreeWidgetItem *group, const QMenu *menu)
{
    for (QAction *action : menu->actions()) {
        if (action->menu()) {
            addCommands(group, action->menu());
            continue;
        }
        if (action->isSeparator() || action->shortcuts().isEmpty())
            continue;
        QStringList keys;
        for (const QKeySequence &key : action->shortcuts())
            keys << key.toString(QKeySequence::NativeText);
        new QTreeWidgetItem(group, { plain(action->text()), keys.join(QStringLiteral(", ")) });
    }
}

} // namespace

ShortcutsDialog::ShortcutsDialog(const QMenuBar *menus, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("shortcutsDialog"));
    setWindowTitle(tr("Keyboard Shortcuts"));
    auto *tree = new QTreeWidget(this);
    tree->setObjectName(QStringLiteral("shortcutList"));
    tree->setHeaderLabels({ tr("Command"), tr("Shortcut") });
    tree->setRootIsDecorated(false);
    tree->setAccessibleName(tr("Keyboard Shortcuts"));
    for (QAction *top : menus->actions()) {
        if (!top->menu())
            continue;
        auto *group = new QTreeWidgetItem(tree, { plain(top->text()) });
        QFont bold = group->font(0);
        bold.setBold(true);
        group->setFont(0, bold);
        group->setFirstColumnSpanned(true);
        addCommands(group, top->menu());
        if (group->childCount() == 0)
            delete group;
    }
    tree->expandAll();
    tree->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    tree->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(tree);
    layout->addWidget(closeButton(this));
    ScreenFit::resize(this, QSize(520, 640));
}

AboutDialog::AboutDialog(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("aboutDialog"));
    setWindowTitle(tr("About Tabo"));
    auto *icon = new QLabel(this);
    icon->setPixmap(QApplication::windowIcon().pixmap(64, 64));
    icon->setAccessibleName(tr("Tabo icon"));
    auto *heading = new QLabel(QStringLiteral("<h2>Tabo %1</h2>").arg(QApplication::applicationVersion()), this);
    auto *text = new QLabel(tr("Invoices and quotes for freelancers and small businesses.") + QStringLiteral("<br><br>")
            + tr("Licence: proprietary; all rights reserved.")
            + QStringLiteral("<br><br><b>%1</b>").arg(tr("Built with")),
        this);
    text->setWordWrap(true);
    auto *libraries = new QTreeWidget(this);
    libraries->setObjectName(QStringLiteral("libraryList"));
    libraries->setHeaderLabels({ tr("Library"), tr("Version") });
    libraries->setRootIsDecorated(false);
    libraries->setAccessibleName(tr("Libraries"));
    for (const LibraryVersion &library : libraryVersions())
        new QTreeWidgetItem(libraries, { library.name, library.version });
    libraries->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    libraries->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);

    auto *top = new QHBoxLayout;
    top->addWidget(icon, 0, Qt::AlignTop);
    auto *words = new QVBoxLayout;
    words->addWidget(heading);
    words->addWidget(text);
    top->addLayout(words, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(libraries, 1);
    layout->addWidget(closeButton(this));
    ScreenFit::resize(this, QSize(480, 440));
}

QString UserGuideWindow::guideFile(const QString &language)
{
    const QString bin = QCoreApplication::applicationDirPath();
    // Installed beside the programs' data, or copied into the build tree
    // (whose tests run one folder down).
    const QStringList folders { bin + QStringLiteral("/../share/tabo/guide"), bin + QStringLiteral("/guide"),
        bin + QStringLiteral("/../guide") };
    const QStringList names { QStringLiteral("user-guide.%1.md").arg(language), QStringLiteral("user-guide.md") };
    for (const QString &folder : folders) {
        for (const QString &name : names) {
            const QFileInfo file(folder + QLatin1Char('/') + name);
            if (file.isFile())
                return file.canonicalFilePath();
        }
    }
    return {};
}

UserGuideWindow::UserGuideWindow(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("userGuideWindow"));
    setWindowTitle(tr("Tabo User Guide"));
    auto *browser = new QTextBrowser(this);
    browser->setObjectName(QStringLiteral("guideText"));
    browser->setOpenExternalLinks(true);
    browser->setAccessibleName(tr("Tabo User Guide"));
    // The language the interface speaks (LANGUAGE first), not the region of numbers.
    const QString language = QLocale().uiLanguages().value(0).section(QLatin1Char('-'), 0, 0);
    const QString file = guideFile(language);
    if (file.isEmpty())
        browser->setPlainText(tr("The user guide is not installed."));
    else
        browser->setSource(QUrl::fromLocalFile(file), QTextDocument::MarkdownResource);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 6);
    layout->addWidget(browser);
    layout->addWidget(closeButton(this));
    ScreenFit::resize(this, QSize(820, 900));
}

} // namespace tabo

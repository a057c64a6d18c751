#include "gui/preferences/DesignPane.h"

#include "app/AppController.h"
#include "app/DesignLibrary.h"
#include "app/DesignPreview.h"
#include "app/OutputCommands.h"
#include "domain/Record.h"
#include "editing/SyntaxColorizer.h"
#include "gui/widgets/HintLabel.h"
#include "gui/windows/PdfPane.h"
#include "prefs/Preferences.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(DesignPane)
};
} // namespace

namespace tabo {

namespace {

constexpr int kSaveDelayMs = 800;
constexpr std::array<int, 3> kAttrs {Design::invoice, Design::item, Design::css};

} // namespace

QVPreferencesTextView::QVPreferencesTextView(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setFont(editorFont());
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setTabStopDistance(QFontMetricsF(font()).horizontalAdvance(QLatin1Char(' ')) * 4);
    document()->setDocumentMargin(6);
}

QFont QVPreferencesTextView::editorFont()
{
    QFont font = QFontDatabase::families().contains(QStringLiteral("Menlo"))
        ? QFont(QStringLiteral("Menlo"))
        : QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSize(10);
    font.setStyleHint(QFont::Monospace);
    return font;
}

DesignPane::DesignPane(AppController &app, QWidget *parent)
    : QWidget(parent)
    , m_app(app)
    , m_list(new QListWidget)
    , m_tabs(new QTabWidget)
    , m_live(new PdfPane)
    , m_note(new HintLabel)
    , m_preview(new DesignPreview(app, app, app.outputs(), app.prefs(), app.ui(), this))
{
    m_list->setObjectName(QStringLiteral("designList"));
    m_list->setAccessibleName(tr("Designs"));
    m_list->setMinimumWidth(170);
    connect(m_list, &QListWidget::currentItemChanged, this, [this] { showDesign(selectedDesign()); });
    connect(m_list, &QListWidget::itemChanged, this, &DesignPane::titleEdited);

    auto *listColumn = new QWidget;
    auto *listLayout = new QVBoxLayout(listColumn);
    listLayout->setContentsMargins(0, 0, 0, 0);
    listLayout->addWidget(m_list);
    auto *grid = new QGridLayout;
    grid->addWidget(addButton(tr("Add"), "designAdd", &DesignPane::addDesign), 0, 0);
    grid->addWidget(addButton(tr("Delete"), "designDelete", &DesignPane::deleteDesign), 0, 1);
    grid->addWidget(addButton(tr("Make Default"), "designDefault", &DesignPane::makeDefaultDesign), 1, 0, 1, 2);
    grid->addWidget(addButton(tr("Import…"), "designImport", &DesignPane::importDesign), 2, 0);
    grid->addWidget(addButton(tr("Export…"), "designExport", &DesignPane::exportDesign), 2, 1);
    grid->addWidget(addButton(tr("Preview"), "designPreview", &DesignPane::previewDesign), 3, 0, 1, 2);
    listLayout->addLayout(grid);

    const std::array<QString, 3> names {QStringLiteral("designInvoice"), QStringLiteral("designItem"),
                                        QStringLiteral("designCss")};
    const std::array<QString, 3> titles {tr("Page"), tr("Row"), tr("Stylesheet")};
    for (int i = 0; i < 3; ++i) {
        auto *view = new QVPreferencesTextView;
        view->setObjectName(names[std::size_t(i)]);
        view->setAccessibleName(titles[std::size_t(i)]);
        m_editors[std::size_t(i)] = view;
        m_colorizers[std::size_t(i)] = new SyntaxColorizer(i == Stylesheet ? QStringLiteral("CSS")
                                                                           : QStringLiteral("HTML"),
                                                           app.prefs(), view->document(), view);
        connect(view, &QPlainTextEdit::textChanged, this, [this, i] { editorChanged(Editor(i)); });
        m_tabs->addTab(view, titles[std::size_t(i)]);
    }

    auto *previewColumn = new QWidget;
    auto *previewLayout = new QVBoxLayout(previewColumn);
    previewLayout->setContentsMargins(0, 0, 0, 0);
    m_live->setObjectName(QStringLiteral("livePreview"));
    m_live->setSinglePage(true);
    m_live->setMinimumWidth(280);
    m_note->setObjectName(QStringLiteral("previewNote"));
    previewLayout->addWidget(m_live, 1);
    previewLayout->addWidget(m_note);

    auto *splitter = new QSplitter;
    splitter->addWidget(listColumn);
    splitter->addWidget(m_tabs);
    splitter->addWidget(previewColumn);
    splitter->setStretchFactor(1, 3);
    splitter->setStretchFactor(2, 2);
    splitter->setSizes({190, 520, 380});
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(splitter);
    setMinimumSize(1040, 600);

    connect(m_preview, &DesignPreview::ready, this, &DesignPane::livePdfReady);
    // A design that cannot be rendered keeps the last good page.
    connect(m_preview, &DesignPreview::failed, m_note, &HintLabel::showMessage);
    connect(m_preview, &DesignPreview::previewReady, this, [this](const QString &path) {
        if (m_previewPane)
            m_previewPane->load(path);
    });
    m_saveTimer.setSingleShot(true);
    m_saveTimer.setInterval(kSaveDelayMs);
    connect(&m_saveTimer, &QTimer::timeout, this, &DesignPane::save);
}

DesignPane::~DesignPane()
{
    if (m_saveTimer.isActive())
        save();
}

QPushButton *DesignPane::addButton(const QString &text, const char *name, void (DesignPane::*slot)())
{
    auto *button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    connect(button, &QPushButton::clicked, this, slot);
    m_buttons << button;
    return button;
}

void DesignPane::showEditor(Editor which)
{
    m_tabs->setCurrentIndex(which);
}

QPushButton *DesignPane::button(const char *name) const
{
    for (QPushButton *b : m_buttons) {
        if (b->objectName() == QLatin1String(name))
            return b;
    }
    return nullptr;
}

Record *DesignPane::selectedDesign() const
{
    const QListWidgetItem *item = m_list->currentItem();
    return item ? static_cast<Record *>(item->data(Qt::UserRole).value<void *>()) : nullptr;
}

void DesignPane::reload()
{
    if (!m_app.store())
        return;
    const QList<Record *> designs = m_app.designs().designs();
    const int index = m_app.designs().selectedDesignIndex();
    fillList(index >= 0 && index < designs.size() ? designs.at(index) : designs.value(0));
}

void DesignPane::fillList(const Record *select)
{
    const QSignalBlocker blocker(m_list);
    m_list->clear();
    const Record *current = m_app.designs().currentDesign();
    QListWidgetItem *selected = nullptr;
    for (Record *design : m_app.designs().designs()) {
        auto *item = new QListWidgetItem(design->text(Design::title), m_list);
        item->setData(Qt::UserRole, QVariant::fromValue(static_cast<void *>(design)));
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        if (design == current) {
            QFont bold = item->font();
            bold.setBold(true);
            item->setFont(bold);
            item->setToolTip(tr("Documents are rendered with this design."));
        }
        if (design == select)
            selected = item;
    }
    m_list->setCurrentItem(selected);
    showDesign(selectedDesign());
}

void DesignPane::showDesign(Record *design)
{
    if (design == m_shown && design)
        return;
    if (m_saveTimer.isActive())
        save();
    m_shown = design;
    m_loading = true;
    for (std::size_t i = 0; i < 3; ++i) {
        m_editors[i]->setPlainText(design ? design->text(kAttrs[i]) : QString());
        m_editors[i]->setEnabled(design != nullptr);
    }
    m_loading = false;
    updateButtons();
    if (design) {
        m_preview->setTexts(design->text(Design::invoice), design->text(Design::item), design->text(Design::css));
        if (isVisible())
            m_preview->renderNow();
    } else {
        m_live->clear();
    }
}

void DesignPane::editorChanged(Editor which)
{
    if (m_loading || !m_shown)
        return;
    m_app.designs().setDesignText(m_shown, kAttrs[std::size_t(which)], m_editors[std::size_t(which)]->toPlainText());
    m_saveTimer.start();
    m_preview->setTexts(m_editors[Page]->toPlainText(), m_editors[Row]->toPlainText(),
                        m_editors[Stylesheet]->toPlainText());
}

void DesignPane::titleEdited(QListWidgetItem *item)
{
    auto *design = static_cast<Record *>(item->data(Qt::UserRole).value<void *>());
    const QString title = item->text().trimmed();
    if (!design)
        return;
    if (title.isEmpty()) {
        // A design without a name could not be told apart in the list.
        const QSignalBlocker blocker(m_list);
        item->setText(design->text(Design::title));
        return;
    }
    m_app.designs().setDesignText(design, Design::title, title);
    save();
}

void DesignPane::updateButtons()
{
    const bool any = selectedDesign() != nullptr;
    for (const char *name : {"designDelete", "designDefault", "designExport"})
        button(name)->setEnabled(any);
}

void DesignPane::livePdfReady(const QString &path)
{
    m_note->clearMessage();
    if (m_live->load(path))
        m_live->fit();
    else
        m_note->showMessage(tr("The preview could not be shown."));
}

void DesignPane::save()
{
    m_saveTimer.stop();
    m_app.save();
}

void DesignPane::saveSelection()
{
    save();
    m_app.designs().setSelectedDesignIndex(m_list->currentRow());
}

void DesignPane::paneShown()
{
    reload();
    if (m_shown)
        m_preview->renderNow();
}

void DesignPane::preferencesChanged()
{
    if (m_shown && isVisible())
        m_preview->setTexts(m_editors[Page]->toPlainText(), m_editors[Row]->toPlainText(),
                            m_editors[Stylesheet]->toPlainText());
}

void DesignPane::addDesign()
{
    Record *design = m_app.designs().addDesign();
    if (!design)
        return;
    fillList(design);
    if (QListWidgetItem *item = m_list->currentItem())
        m_list->editItem(item);
}

void DesignPane::deleteDesign()
{
    Record *design = selectedDesign();
    const int row = m_list->currentRow();
    if (!design || !m_app.designs().deleteDesign(design))
        return;
    m_shown = nullptr;
    const QList<Record *> designs = m_app.designs().designs();
    fillList(designs.value(std::min(row, int(designs.size()) - 1)));
    m_app.designs().setSelectedDesignIndex(m_list->currentRow());
}

void DesignPane::makeDefaultDesign()
{
    Record *design = selectedDesign();
    if (!design)
        return;
    m_app.designs().makeDefaultDesign(design);
    save();
    fillList(design);
}

void DesignPane::importDesign()
{
    Record *design = m_app.designs().importDesign();
    if (!design)
        return;
    save();
    fillList(design);
}

void DesignPane::exportDesign()
{
    if (Record *design = selectedDesign())
        m_app.designs().exportDesign(design);
}

void DesignPane::previewDesign()
{
    if (m_previewWindow && m_previewWindow->isVisible()) {
        m_previewWindow->close();
        m_previewPane->clear();
        return;
    }
    if (!m_app.outputs().checkDesignsAvailable())
        return;
    saveSelection();
    if (!m_previewWindow) {
        m_previewWindow = new QWidget(window(), Qt::Window);
        m_previewWindow->setObjectName(QStringLiteral("designPreviewWindow"));
        m_previewWindow->setWindowTitle(tr("Design Preview"));
        m_previewPane = new PdfPane;
        auto *print = new QPushButton(tr("Print…"));
        print->setObjectName(QStringLiteral("designPrintPreview"));
        connect(print, &QPushButton::clicked, m_preview, &DesignPreview::printPreview);
        auto *layout = new QVBoxLayout(m_previewWindow);
        layout->addWidget(m_previewPane, 1);
        auto *row = new QHBoxLayout;
        row->addStretch();
        row->addWidget(print);
        layout->addLayout(row);
        m_previewWindow->resize(620, 820);
    }
    m_previewPane->clear();
    m_previewPane->setSinglePage(true);
    m_previewWindow->show();
    m_previewWindow->raise();
    Record *design = selectedDesign();
    m_preview->generatePreview(design ? design : m_app.designs().currentDesign());
}

} // namespace tabo

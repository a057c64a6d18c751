#include "gui/preferences/PreferencePanel.h"

#include "app/AppController.h"
#include "app/DesignLibrary.h"
#include "app/Interaction.h"
#include "app/NotificationCommands.h"
#include "app/ReminderTimer.h"
#include "base/Clock.h"
#include "domain/Numbering.h"
#include "domain/PrefRules.h"
#include "gui/main/FileMenu.h"
#include "gui/preferences/DesignPane.h"
#include "gui/preferences/LogoWell.h"
#include "gui/preferences/PrefsBinder.h"
#include "gui/widgets/Accessibility.h"
#include "gui/widgets/HintLabel.h"
#include "gui/widgets/Icons.h"
#include "gui/widgets/Keys.h"
#include "gui/widgets/PlainTextField.h"
#include "gui/widgets/ScreenFit.h"
#include "prefs/Locations.h"

#include <QScrollArea>
#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDesktopServices>
#include <QFileInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QHash>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

#include <array>

namespace tabo {

namespace {

using P = Preferences;

struct PaneInfo
{
    const char *identifier;
    const char *label;
    const char *title;
    const char *theme;
    char letter;
    QRgb tint;
};

// The Data pane's title names the other platform's synchronisation; its
// label and the window title here say what it holds.
constexpr std::array<PaneInfo, QVPreferencePanel::PaneCount> kPanes { {
    { "View1ItemIdentifier", QT_TRANSLATE_NOOP("QVPreferencePanel", "Company"),
        QT_TRANSLATE_NOOP("QVPreferencePanel", "Company"), "x-office-address-book", 'C', 0xff2e7d32 },
    { "View2ItemIdentifier", QT_TRANSLATE_NOOP("QVPreferencePanel", "Invoice"),
        QT_TRANSLATE_NOOP("QVPreferencePanel", "Invoice"), "x-office-document", 'I', 0xff1565c0 },
    { "View3ItemIdentifier", QT_TRANSLATE_NOOP("QVPreferencePanel", "Taxes"),
        QT_TRANSLATE_NOOP("QVPreferencePanel", "Taxes"), "accessories-calculator", '%', 0xffc62828 },
    { "View4ItemIdentifier", QT_TRANSLATE_NOOP("QVPreferencePanel", "Template"),
        QT_TRANSLATE_NOOP("QVPreferencePanel", "Template"), "x-office-document-template", 'T', 0xff6a1b9a },
    { "View5ItemIdentifier", QT_TRANSLATE_NOOP("QVPreferencePanel", "Design"),
        QT_TRANSLATE_NOOP("QVPreferencePanel", "Design"), "applications-graphics", 'D', 0xffef6c00 },
    { "View6ItemIdentifier", QT_TRANSLATE_NOOP("QVPreferencePanel", "Region"),
        QT_TRANSLATE_NOOP("QVPreferencePanel", "Region"), "preferences-desktop-locale", 'R', 0xff00838f },
    { "View7ItemIdentifier", QT_TRANSLATE_NOOP("QVPreferencePanel", "Clients"),
        QT_TRANSLATE_NOOP("QVPreferencePanel", "Clients"), "system-users", 'K', 0xff4e342e },
    { "View9ItemIdentifier", QT_TRANSLATE_NOOP("QVPreferencePanel", "Data"),
        QT_TRANSLATE_NOOP("QVPreferencePanel", "Data"), "drive-harddisk", 'S', 0xff455a64 },
} };

// A field with the line that explains a refusal under it.
QWidget *withHint(PrefsBinder *binder, QWidget *field)
{
    HintLabel *hint = binder->hintFor(field);
    if (!hint)
        return field;
    auto *box = new QWidget;
    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(field);
    layout->addWidget(hint);
    return box;
}

QFormLayout *newForm(QWidget *parent)
{
    auto *form = new QFormLayout(parent);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return form;
}

QLabel *note(const QString &text)
{
    auto *label = new QLabel(text);
    label->setWordWrap(true);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

} // namespace

QVPreferencePanel::QVPreferencePanel(AppController &app, FileMenu *fileMenu, QWidget *parent)
    : QMainWindow(parent)
    , m_app(app)
    , m_fileMenu(fileMenu)
    , m_binder(new PrefsBinder(app.prefs(), this))
    , m_toolbar(new QToolBar)
    , m_group(new QActionGroup(this))
    , m_holder(new QWidget)
    , m_holderLayout(new QVBoxLayout(m_holder))
{
    setObjectName(QStringLiteral("QVPreferencePanel"));
    setWindowTitle(tr("Preferences"));
    m_toolbar->setObjectName(QStringLiteral("%1.qvpreferencepanel.toolbar").arg(QApplication::applicationName()));
    m_toolbar->setMovable(false);
    m_toolbar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    m_toolbar->setIconSize(QSize(32, 32));
    addToolBar(m_toolbar);
    // A pane taller than a small screen scrolls instead of pushing the
    // window past it.
    auto *scroll = new QScrollArea;
    scroll->setObjectName(QStringLiteral("preferencesScroll"));
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(m_holder);
    setCentralWidget(scroll);
    auto *close = new QAction(tr("Close"), this);
    close->setObjectName(QStringLiteral("preferencesClose"));
    close->setShortcuts(
        keysWith({QKeySequence(Qt::CTRL | Qt::Key_W), QKeySequence(Qt::Key_Escape)}, QKeySequence::Close));
    connect(close, &QAction::triggered, this, &QWidget::close);
    addAction(close);
    m_holderLayout->setContentsMargins(16, 12, 16, 16);

    for (int i = 0; i < PaneCount; ++i) {
        const PaneInfo &info = kPanes[std::size_t(i)];
        QAction *action = m_toolbar->addAction(
            Icons::themed(QLatin1String(info.theme), QLatin1Char(info.letter), QColor::fromRgba(info.tint)),
            tr(info.label));
        action->setObjectName(QLatin1String(info.identifier));
        action->setCheckable(true);
        m_group->addAction(action);
        connect(action, &QAction::triggered, this, [this, i] { selectPane(Pane(i)); });
        m_actions << action;
    }

    m_designPane = new DesignPane(app);
    m_panes = {createCompanyPane(), createInvoicePane(), createTaxesPane(), createTemplatePane(),
               m_designPane, createRegionPane(), createClientsPane(), createDataPane()};
    // Owned by the panel from the start: a pane never shown must not outlive
    // it (the design pane's preview timer would run on a closed controller).
    for (QWidget *pane : std::as_const(m_panes)) {
        pane->setParent(this);
        pane->hide();
    }
    connect(m_binder, &PrefsBinder::changed, this, [this](P::Key key) {
        if (key == P::prefsDatePattern || key == P::prefsRegion)
            updateDateExample();
        // The store numbers from its own counters; the field is their mirror.
        if (key == P::invCount || key == P::quotCount)
            if (const Error e = m_app.setNumberCounter(key, m_app.prefs().integer(key)))
                m_app.ui().presentError(e);
        // Paper, margins and labels change the sample page.
        m_designPane->preferencesChanged();
    });
    Accessibility::labelFields(this);
}

QVPreferencePanel::~QVPreferencePanel() = default;

QString QVPreferencePanel::paneLabel(Pane pane)
{
    return tr(kPanes[std::size_t(pane)].label);
}

QString QVPreferencePanel::paneTitle(Pane pane)
{
    return tr(kPanes[std::size_t(pane)].title);
}

void QVPreferencePanel::showPanel()
{
    m_binder->reload();
    m_logo->reload();
    updateStorePath();
    m_designPane->reload();
    selectPane(Company);
    show();
    raise();
    activateWindow();
}

void QVPreferencePanel::selectPane(Pane pane)
{
    if (pane < 0 || pane >= PaneCount)
        return;
    m_actions.at(pane)->setChecked(true);
    setWindowTitle(paneTitle(pane));
    if (pane == m_current)
        return;
    if (m_current != PaneCount) {
        QWidget *old = m_panes.at(m_current);
        m_holderLayout->removeWidget(old);
        old->hide();
    }
    m_current = pane;
    QWidget *view = m_panes.at(pane);
    m_holderLayout->addWidget(view);
    view->show();
    if (pane == Design)
        m_designPane->paneShown();
    // One size for every pane, the largest one's within the screen: a window
    // that changes size under the pointer loses the place of the toolbar.
    if (!m_sized) {
        QSize largest(560, 0);
        for (const QWidget *each : std::as_const(m_panes))
            largest = largest.expandedTo(each->sizeHint().expandedTo(each->minimumSizeHint()));
        ScreenFit::resize(this, largest + QSize(32, 28 + m_toolbar->sizeHint().height()));
        m_sized = true;
    }
}

QWidget *QVPreferencePanel::createCompanyPane()
{
    auto *pane = new QWidget;
    QFormLayout *form = newForm(pane);
    form->addRow(tr("Company name:"), m_binder->text(P::prefsName));
    form->addRow(tr("Slogan:"), m_binder->text(P::prefsSlogan));
    form->addRow(tr("Contact:"), m_binder->block(P::prefsContact, 5));
    form->addRow(tr("Letterbox line:"), m_binder->text(P::prefsLetterbox));
    form->addRow(QString(), note(tr("The sender line above the address, read through a window envelope.")));
    m_logo = new LogoWell(m_app);
    form->addRow(tr("Logo:"), m_logo);
    QLineEdit *currency = m_binder->text(P::prefsCurrency);
    currency->setMaximumWidth(80);
    form->addRow(tr("Currency sign:"), currency);

    // Two columns keep the pane no taller than the others.
    auto *details = new QGroupBox(tr("Address, taxes and bank (for footers and e-invoices)"));
    auto *grid = new QGridLayout(details);
    const std::pair<P::Key, QString> fields[] = {
        {P::prefsStreet, tr("Street:")},  {P::prefsPostcode, tr("Postcode:")},  {P::prefsCity, tr("City:")},
        {P::prefsCountryCode, tr("Country code:")}, {P::prefsContactPhone, tr("Phone:")},  {P::prefsContactEmail, tr("E-mail:")},
        {P::prefsVATID, tr("VAT ID:")},   {P::prefsTaxNumber, tr("Tax number:")}, {P::prefsBankName, tr("Bank:")},
        {P::prefsIBAN, tr("IBAN:")},      {P::prefsBIC, tr("BIC:")}, {P::prefsContactName, tr("Contact person:")},
        {P::prefsElectronicAddress, tr("E-invoice address:")}, {P::prefsCurrencyCode, tr("Currency code:")}};
    int i = 0;
    for (const auto &[key, label] : fields) {
        grid->addWidget(new QLabel(label), i / 2, (i % 2) * 2, Qt::AlignRight);
        grid->addWidget(m_binder->text(key), i / 2, (i % 2) * 2 + 1);
        ++i;
    }
    auto *compose = new QPushButton(tr("Compose Footers…"));
    compose->setObjectName(QStringLiteral("composeFooters"));
    connect(compose, &QPushButton::clicked, this, [this] {
        if (m_app.recomposeFooters())
            m_binder->reload();
    });
    grid->addWidget(compose, i / 2, 2, 1, 2, Qt::AlignRight);
    form->addRow(details);
    return pane;
}

QWidget *QVPreferencePanel::createInvoicePane()
{
    auto *pane = new QWidget;
    auto *column = new QVBoxLayout(pane);
    const auto numbering = [this](const QString &title, P::Key pattern, P::Key count, P::Key hasNumber, P::Key hasDays,
                                  P::Key days, const QString &daysLabel) {
        auto *box = new QGroupBox(title);
        QFormLayout *form = newForm(box);
        form->addRow(tr("Pattern:"), withHint(m_binder, m_binder->pattern(pattern)));
        form->addRow(tr("Counter:"), withHint(m_binder, m_binder->number(count, 0, PrefRules::kMaxCounter, tr("The counter"))));
        form->addRow(QString(), m_binder->check(hasNumber, tr("New documents get a number")));
        form->addRow(QString(), m_binder->check(hasDays, daysLabel));
        form->addRow(tr("Days:"), withHint(m_binder, m_binder->number(days, 0, PrefRules::kMaxDays, tr("The number of days"))));
        return box;
    };
    column->addWidget(numbering(tr("Invoices"), P::invPattern, P::invCount, P::invHaveNumber, P::invHaveDueDate,
                                P::invDefaultDueDate, tr("New invoices get a due date")));
    column->addWidget(numbering(tr("Quotes"), P::quotPattern, P::quotCount, P::quotHaveNumber, P::quotHaveValidity,
                                P::quotDefaultValidity, tr("New quotes get a validity date")));
    column->addWidget(note(tr("Patterns take %COUNT%, %YEAR%, %MONTH% and %DAY%.")));
    auto *output = new QGroupBox(tr("Output"));
    QFormLayout *form = newForm(output);
    form->addRow(QString(), m_binder->check(P::markInvoiceAsSent, tr("Printing or mailing marks an invoice as sent")));
    form->addRow(tr("Print:"), m_binder->choice(P::printBehavior, {tr("At once, on the default printer"),
                                                                    tr("After the print dialog")}));
    form->addRow(tr("Export documents as:"), m_binder->choice(P::exportFormat, {tr("Tabo document"), tr("XML")}));
    form->addRow(tr("Sort lines by:"), m_binder->choice(P::itemSortOrder, {tr("Title"), tr("Order of entry"),
                                                                            tr("Newest first"), tr("Highest amount")}));
    column->addWidget(output);
    return pane;
}

QWidget *QVPreferencePanel::createTaxesPane()
{
    auto *pane = new QWidget;
    auto *column = new QVBoxLayout(pane);
    auto *grid = new QGridLayout;
    grid->addWidget(new QLabel(tr("Title")), 0, 1);
    grid->addWidget(new QLabel(tr("Rate (%)")), 0, 2);
    struct Tax
    {
        P::Key enabled, title, rate, compound, category, exemption;
    };
    const std::array<Tax, 3> taxes {{{P::tax1Enabled, P::tax1Title, P::tax1Rate, P::KeyCount, P::tax1Category,
                                      P::tax1ExemptionReason},
                                     {P::tax2Enabled, P::tax2Title, P::tax2Rate, P::tax2IsCompound, P::tax2Category,
                                      P::tax2ExemptionReason},
                                     {P::tax3Enabled, P::tax3Title, P::tax3Rate, P::tax3IsCompound, P::tax3Category,
                                      P::tax3ExemptionReason}}};
    // The VAT categories of EN 16931 (UNCL 5305), as e-invoices state them.
    const QList<std::pair<QString, QString>> categories{
        {QStringLiteral("S"), tr("Standard rate")},       {QStringLiteral("Z"), tr("Zero rated")},
        {QStringLiteral("E"), tr("Exempt")},              {QStringLiteral("AE"), tr("Reverse charge")},
        {QStringLiteral("K"), tr("Intra-community supply")}, {QStringLiteral("G"), tr("Export outside the EU")},
        {QStringLiteral("O"), tr("Not subject to VAT")}};
    grid->addWidget(new QLabel(tr("E-invoice category")), 0, 4);
    grid->addWidget(new QLabel(tr("Reason when not charged")), 0, 5);
    int row = 1;
    for (const Tax &tax : taxes) {
        grid->addWidget(m_binder->check(tax.enabled, tr("Tax %1").arg(row)), row, 0, Qt::AlignTop);
        // The column headings name the fields for a screen reader too.
        const auto named = [row](QWidget *field, const QString &column) {
            field->setAccessibleName(tr("Tax %1").arg(row) + QStringLiteral(": ") + column);
            return field;
        };
        grid->addWidget(named(m_binder->text(tax.title), tr("Title")), row, 1, Qt::AlignTop);
        QLineEdit *rate = m_binder->rate(tax.rate);
        named(rate, tr("Rate (%)"));
        rate->setMaximumWidth(90);
        grid->addWidget(withHint(m_binder, rate), row, 2, Qt::AlignTop);
        if (tax.compound != P::KeyCount)
            grid->addWidget(m_binder->check(tax.compound, tr("Compound")), row, 3, Qt::AlignTop);
        grid->addWidget(
            named(m_binder->code(tax.category, categories), tr("E-invoice category")), row, 4, Qt::AlignTop);
        QLineEdit *reason = m_binder->text(tax.exemption);
        named(reason, tr("Reason when not charged"));
        reason->setPlaceholderText(tr("e.g. Steuerschuldnerschaft des Leistungsempfängers"));
        grid->addWidget(reason, row, 5, Qt::AlignTop);
        ++row;
    }
    column->addLayout(grid);
    column->addWidget(note(tr("A compound tax is computed on the net amount plus the taxes before it.")));
    column->addWidget(m_binder->check(P::centExactTotals, tr("Calculate new documents to the cent (EN 16931)")));
    column->addWidget(note(tr("Each line is rounded to the cent and each rate's VAT is taken after the discount. "
                              "Compound taxes and lines with two taxes are calculated the classic way. Existing "
                              "documents keep their figures.")));
    column->addWidget(m_binder->check(P::beforeTaxesBool, tr("Take the discount before taxes (classic calculation)")));
    column->addWidget(m_binder->check(P::showSingleTaxAmounts, tr("Show each line's tax amounts")));
    column->addWidget(m_binder->check(P::showItemSubAmount, tr("Show each line's amount before tax")));
    column->addStretch();
    return pane;
}

QWidget *QVPreferencePanel::createTemplatePane()
{
    auto *pane = new QWidget;
    auto *column = new QVBoxLayout(pane);
    auto *tabs = new QTabWidget;
    tabs->setObjectName(QStringLiteral("templateTabs"));
    struct Texts
    {
        const char *title;
        P::Key conditions, footer, misc;
    };
    const std::array<Texts, 4> kinds { { { QT_TRANSLATE_NOOP("QVPreferencePanel", "Invoice"), P::tempInvConditions,
                                             P::tempInvFooter, P::tempInvMisc },
        { QT_TRANSLATE_NOOP("QVPreferencePanel", "Quote"), P::tempQuotConditions, P::tempQuotFooter, P::tempQuotMisc },
        { QT_TRANSLATE_NOOP("QVPreferencePanel", "Reminder"), P::tempRemConditions, P::tempRemFooter, P::tempRemMisc },
        { QT_TRANSLATE_NOOP("QVPreferencePanel", "Slip"), P::tempSlipConditions, P::tempSlipFooter,
            P::tempSlipMisc } } };
    for (const Texts &kind : kinds) {
        auto *page = new QWidget;
        QFormLayout *form = newForm(page);
        form->addRow(tr("Conditions:"), m_binder->block(kind.conditions, 4));
        form->addRow(tr("Footer:"), m_binder->block(kind.footer, 3));
        form->addRow(tr("Free text:"), m_binder->block(kind.misc, 3));
        tabs->addTab(page, tr(kind.title));
    }
    auto *mail = new QWidget;
    newForm(mail)->addRow(tr("E-mail text:"), m_binder->block(P::tempEmailBody, 8));
    tabs->addTab(mail, tr("E-mail"));
    column->addWidget(tabs);
    column->addWidget(note(tr("These texts are copied into new documents and may hold HTML.")));

    auto *output = new QGroupBox(tr("Paper and rows"));
    QFormLayout *form = newForm(output);
    form->addRow(tr("Paper size:"), m_binder->choice(P::tempPaperSize, {tr("US Letter"), tr("US Legal"), tr("A4"),
                                                                         tr("B4 (JIS)"), tr("B5 (JIS)")}));
    form->addRow(QString(), m_binder->check(P::printBorderless, tr("Print and write PDFs without page margins")));
    form->addRow(QString(), m_binder->check(P::tempUseSKU, tr("Show article numbers on rows")));
    form->addRow(tr("Account book font:"), m_binder->text(P::tempBorderFont));
    form->addRow(QString(), m_binder->check(P::tempPrintNumbers, tr("Number the account book's pages")));
    form->addRow(QString(), m_binder->check(P::tempPrintDetails, tr("Print the account book with details")));
    column->addWidget(output);
    return pane;
}

QWidget *QVPreferencePanel::createRegionPane()
{
    auto *pane = new QWidget;
    auto *column = new QVBoxLayout(pane);
    auto *top = new QWidget;
    QFormLayout *form = newForm(top);
    form->setContentsMargins(0, 0, 0, 0);
    auto *region = new QComboBox;
    region->setEditable(true);
    region->setObjectName(QStringLiteral("prefsRegion"));
    for (const char *name : {"en_US", "en_GB", "de_DE", "de_AT", "de_CH", "fr_FR", "fr_BE", "fr_CH", "es_ES", "es_MX",
                             "it_IT", "nl_NL"}) {
        const QLocale locale {QString::fromLatin1(name)};
        region->addItem(QStringLiteral("%1 (%2)").arg(locale.nativeLanguageName(), locale.nativeTerritoryName()),
                        QLatin1String(name));
    }
    const auto showRegion = [this, region] {
        const QString current = m_app.prefs().documentRegion();
        const int at = region->findData(current);
        if (at >= 0)
            region->setCurrentIndex(at);
        else
            region->setEditText(current);
    };
    showRegion();
    connect(m_binder, &PrefsBinder::changed, region, [showRegion](P::Key key) {
        if (key == P::languageDefaults)
            showRegion();
    });
    auto *regionHint = new HintLabel;
    const auto setRegion = [this, region, regionHint](const QString &text) {
        const int at = region->findText(text);
        const QString name = at >= 0 ? region->itemData(at).toString() : text.trimmed();
        // A name QLocale does not know falls back to "C": refuse it.
        if (QLocale(name).name() == QLatin1String("C")) {
            regionHint->showMessage(tr("“%1” is no region; use a name such as de_DE or fr_FR.").arg(text));
            return;
        }
        regionHint->clearMessage();
        m_app.prefs().setString(P::prefsRegion, name);
        updateDateExample();
        m_designPane->preferencesChanged();
    };
    connect(region, &QComboBox::activated, this, [region, setRegion] { setRegion(region->currentText()); });
    connect(region->lineEdit(), &QLineEdit::editingFinished, this, [region, setRegion] {
        setRegion(region->currentText());
    });
    auto *regionBox = new QWidget;
    auto *regionColumn = new QVBoxLayout(regionBox);
    regionColumn->setContentsMargins(0, 0, 0, 0);
    regionColumn->addWidget(region);
    regionColumn->addWidget(regionHint);
    form->addRow(tr("Documents' region:"), regionBox);
    form->addRow(QString(), note(tr("Numbers, amounts and month names on documents follow this region.")));
    form->addRow(tr("Date pattern:"), m_binder->text(P::prefsDatePattern));
    m_dateExample = new QLabel;
    m_dateExample->setObjectName(QStringLiteral("dateExample"));
    form->addRow(tr("Today:"), m_dateExample);
    form->addRow(tr("Address pattern:"), m_binder->block(P::prefsAddressPattern, 4));
    column->addWidget(top);

    auto *labels = new QGroupBox(tr("Words printed on documents"));
    auto *grid = new QGridLayout(labels);
    const P::Key locKeys[] = {P::locInvoice, P::locQuote, P::locReminder, P::locSlip, P::locInvoiceNumber,
                              P::locQuoteNumber, P::locClientNumber, P::locNumber, P::locNo, P::locDate, P::locDue,
                              P::locOverdue, P::locExpiration, P::locDispatched, P::locDescription, P::locQuantity,
                              P::locUnit, P::locUnitPrice, P::locSKUNumber, P::locNet, P::locSubtotal, P::locTaxes,
                              P::locDiscount, P::locShipping, P::locTotal, P::locPageOf, P::locAmount, P::locVATID};
    // Where the key's own name would not say what the word is for.
    const QHash<P::Key, QString> named = {{P::locSKUNumber, tr("SKU number")},
                                          {P::locNet, tr("Net amounts")},
                                          {P::locAmount, tr("Line totals")},
                                          {P::locVATID, tr("VAT ID")}};
    constexpr int rows = 14;
    int i = 0;
    for (const P::Key key : locKeys) {
        const int row = i % rows;
        const int col = (i / rows) * 2;
        // "locUnitPrice" reads "Unit price".
        QString name = named.value(key, Preferences::info(key).name.mid(3));
        if (!named.contains(key)) {
            for (qsizetype c = name.size() - 1; c > 0; --c) {
                if (name.at(c).isUpper() && name.at(c - 1).isLower())
                    name.insert(c, QLatin1Char(' '));
            }
            name = name.left(1) + name.mid(1).toLower();
        }
        grid->addWidget(new QLabel(name + QLatin1Char(':')), row, col, Qt::AlignRight);
        grid->addWidget(m_binder->text(key), row, col + 1);
        ++i;
    }
    column->addWidget(labels);

    auto *install = new QPushButton(tr("Install Language Defaults…"));
    install->setObjectName(QStringLiteral("installLanguageDefaults"));
    connect(install, &QPushButton::clicked, this, &QVPreferencePanel::installLanguage);
    auto *row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(install);
    column->addLayout(row);
    updateDateExample();
    return pane;
}

void QVPreferencePanel::installLanguage()
{
    const QStringList languages {tr("English"), tr("German"), tr("French"), tr("Spanish")};
    bool ok = false;
    const QString chosen = QInputDialog::getItem(this, tr("Install Language Defaults"),
                                                 tr("Language of the documents' words and texts:"), languages,
                                                 int(std::clamp<qint64>(m_app.prefs().integer(P::languageDefaults), 0, 3)),
                                                 false, &ok);
    if (!ok)
        return;
    if (m_app.installLanguageDefaults(languages.indexOf(chosen))) {
        m_binder->reload();
        Q_EMIT m_binder->changed(P::languageDefaults);
        updateDateExample();
    }
}

void QVPreferencePanel::updateDateExample()
{
    if (!m_dateExample)
        return;
    const Preferences &prefs = m_app.prefs();
    m_dateExample->setText(Numbering::patternDateString(prefs.string(P::prefsDatePattern), tabo::now(),
                                                        prefs.documentRegion()));
}

QWidget *QVPreferencePanel::createClientsPane()
{
    auto *pane = new QWidget;
    QFormLayout *form = newForm(pane);
    form->addRow(tr("Client number pattern:"), withHint(m_binder, m_binder->pattern(P::clientPattern)));
    form->addRow(tr("Counter:"),
                 withHint(m_binder, m_binder->number(P::clientCount, 0, PrefRules::kMaxCounter, tr("The counter"))));
    form->addRow(tr("Name in the salutation:"),
                 m_binder->choice(P::clientNamePatternTag, {tr("Last name"), tr("First and last name"),
                                                           tr("Title and last name"), tr("Title and first name"),
                                                           tr("Title, first and last name")}));
    QLineEdit *vcard = m_binder->text(P::contactsVCardFile);
    auto *choose = new QPushButton(tr("Choose…"));
    connect(choose, &QPushButton::clicked, this, [this, vcard] {
        Interaction::FileRequest request;
        request.title = tr("Choose Contacts File");
        request.extensions = {QStringLiteral("vcf"), QStringLiteral("vcard")};
        const QString path = m_app.ui().openFile(request);
        if (path.isEmpty())
            return;
        m_app.prefs().setString(P::contactsVCardFile, path);
        vcard->setText(path);
    });
    auto *row = new QHBoxLayout;
    row->addWidget(vcard);
    row->addWidget(choose);
    form->addRow(tr("Contacts (vCard file):"), row);
    return pane;
}

QWidget *QVPreferencePanel::createDataPane()
{
    auto *pane = new QWidget;
    auto *column = new QVBoxLayout(pane);
    auto *location = new QGroupBox(tr("Database"));
    QFormLayout *form = newForm(location);
    auto *custom = new QCheckBox(tr("Keep the database in a folder of my choice"));
    custom->setObjectName(QStringLiteral("useCustomPath"));
    connect(custom, &QCheckBox::clicked, this, [this, custom](bool on) {
        m_app.chooseCustomDatabasePath(on);
        custom->setChecked(m_app.prefs().boolean(P::useCustomPath));
        updateStorePath();
    });
    form->addRow(QString(), custom);
    m_storePath = new QLineEdit;
    m_storePath->setObjectName(QStringLiteral("storePath"));
    m_storePath->setReadOnly(true);
    form->addRow(tr("Stored in:"), m_storePath);
    auto *openStore = new QPushButton(tr("Show in Folder"));
    connect(openStore, &QPushButton::clicked, this, [this] {
        m_app.ui().openWithDefaultApplication(QFileInfo(m_app.storeFilePath()).absolutePath());
    });
    form->addRow(QString(), openStore);
    connect(m_binder, &PrefsBinder::changed, custom, [this, custom] {
        custom->setChecked(m_app.prefs().boolean(P::useCustomPath));
    });
    custom->setChecked(m_app.prefs().boolean(P::useCustomPath));
    column->addWidget(location);

    auto *backups = new QGroupBox(tr("Backups"));
    auto *grid = new QGridLayout(backups);
    if (m_fileMenu) {
        int i = 0;
        for (QAction *action : m_fileMenu->backupActions()) {
            auto *button = new QToolButton;
            button->setDefaultAction(action);
            button->setToolButtonStyle(Qt::ToolButtonTextOnly);
            button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
            grid->addWidget(button, i / 2, i % 2);
            ++i;
        }
    }
    auto *automatic = new QLabel(tr("The automatic backup is kept in %1").arg(QFileInfo(Locations::automaticBackupFile()).absolutePath()));
    automatic->setWordWrap(true);
    automatic->setTextInteractionFlags(Qt::TextSelectableByMouse);
    grid->addWidget(automatic, 4, 0, 1, 2);
    auto *openBackups = new QPushButton(tr("Show Automatic Backup"));
    connect(openBackups, &QPushButton::clicked, this, [this] {
        m_app.ui().openWithDefaultApplication(QFileInfo(Locations::automaticBackupFile()).absolutePath());
    });
    grid->addWidget(openBackups, 5, 1);
    column->addWidget(backups);

    // Reminders reach the desktop only while some process looks at the schedule.
    auto *reminders = new QGroupBox(tr("Reminders While Tabo Is Closed"));
    auto *row = new QHBoxLayout(reminders);
    auto *state = new QLabel;
    state->setWordWrap(true);
    auto *toggle = new QPushButton;
    toggle->setObjectName(QStringLiteral("reminderTimer"));
    const auto show = [state, toggle] {
        const bool installed = ReminderTimer().isInstalled();
        state->setText(installed ? tr("A timer of your desktop session shows due reminders every hour (%1).")
                                       .arg(ReminderTimer::unitFolder())
                                 : tr("Reminders arrive only while Tabo is open."));
        toggle->setText(installed ? tr("Remove Timer") : tr("Install Timer"));
    };
    connect(toggle, &QPushButton::clicked, this, [this, show] {
        m_app.notifications().setReminderTimerInstalled(!ReminderTimer().isInstalled());
        show();
    });
    show();
    row->addWidget(state, 1);
    row->addWidget(toggle);
    column->addWidget(reminders);
    column->addStretch();
    updateStorePath();
    return pane;
}

void QVPreferencePanel::updateStorePath()
{
    if (m_storePath)
        m_storePath->setText(m_app.storeFilePath());
}

void QVPreferencePanel::saveState()
{
    m_designPane->saveSelection();
    m_app.prefs().sync();
}

void QVPreferencePanel::closeEvent(QCloseEvent *event)
{
    saveState();
    QMainWindow::closeEvent(event);
}

void QVPreferencePanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::ActivationChange && !isActiveWindow() && isVisible())
        saveState();
    QMainWindow::changeEvent(event);
}

} // namespace tabo

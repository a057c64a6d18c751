#include "gui/preferences/FirstStartAssistant.h"

#include "app/AppController.h"
#include "gui/widgets/Accessibility.h"
#include "prefs/Preferences.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QStringList>
#include <QVBoxLayout>
#include <QWizardPage>

namespace tabo {

namespace {

// The order is that of `languageDefaults`.
int languageForLocale()
{
    switch (QLocale().language()) {
    case QLocale::German: return 1;
    case QLocale::French: return 2;
    case QLocale::Spanish: return 3;
    default: return 0;
    }
}

} // namespace

FirstStartAssistant::FirstStartAssistant(AppController &app, QWidget *parent) : QWizard(parent), m_app(app)
{
    setWindowTitle(tr("Welcome to Tabo"));
    setWizardStyle(QWizard::ModernStyle);
    setOption(QWizard::NoBackButtonOnStartPage);

    auto *languagePage = new QWizardPage;
    languagePage->setTitle(tr("Language of your documents"));
    languagePage->setSubTitle(tr("Tabo fills in labels, texts, number patterns, taxes and paper size for the "
                                 "language you write your invoices in. You can change every one of them later."));
    m_language = new QComboBox;
    m_language->addItems({tr("English"), tr("German"), tr("French"), tr("Spanish")});
    m_language->setCurrentIndex(languageForLocale());
    auto *languageLayout = new QFormLayout(languagePage);
    languageLayout->addRow(tr("Documents in:"), m_language);
    m_centExact = new QCheckBox(tr("Calculate totals to the cent for each VAT rate"));
    m_centExact->setObjectName(QStringLiteral("centExactTotals"));
    m_centExact->setChecked(AppController::recommendsCentExactTotals(m_language->currentIndex()));
    auto *why = new QLabel(AppController::centExactTotalsReason());
    why->setWordWrap(true);
    languageLayout->addRow(m_centExact);
    languageLayout->addRow(why);
    connect(m_language, &QComboBox::currentIndexChanged, m_centExact,
            [this](int index) { m_centExact->setChecked(AppController::recommendsCentExactTotals(index)); });
    addPage(languagePage);

    using P = Preferences;
    const auto page = [this](const QString &title, const QString &subtitle,
                             std::initializer_list<std::pair<P::Key, QString>> rows) {
        auto *p = new QWizardPage;
        p->setTitle(title);
        p->setSubTitle(subtitle);
        auto *form = new QFormLayout(p);
        for (const auto &[key, label] : rows) {
            auto *edit = new QLineEdit;
            edit->setObjectName(Preferences::info(key).name);
            form->addRow(label, edit);
            m_fields.append({key, edit});
        }
        addPage(p);
    };
    page(tr("Your company"), tr("These details head every document you send."),
         {{P::prefsName, tr("Company name:")},
          {P::prefsSlogan, tr("Slogan:")},
          {P::prefsStreet, tr("Street:")},
          {P::prefsPostcode, tr("Postcode:")},
          {P::prefsCity, tr("City:")},
          {P::prefsCountryCode, tr("Country code:")},
          {P::prefsContactPhone, tr("Phone:")},
          {P::prefsContactEmail, tr("E-mail:")}});
    page(tr("Taxes and bank"),
         tr("Invoices must name your tax number or VAT ID, and your customers need your bank details to pay. "
            "They go into the footer of every document; leave out what you do not have."),
         {{P::prefsVATID, tr("VAT ID:")},
          {P::prefsTaxNumber, tr("Tax number:")},
          {P::prefsBankName, tr("Bank:")},
          {P::prefsIBAN, tr("IBAN:")},
          {P::prefsBIC, tr("BIC:")}});
    field(P::prefsCountryCode)->setMaxLength(2);
    field(P::prefsCountryCode)->setPlaceholderText(tr("DE, FR, US…"));
    Accessibility::labelFields(this);
}

QLineEdit *FirstStartAssistant::field(Preferences::Key key) const
{
    for (const auto &[k, edit] : m_fields)
        if (k == key)
            return edit;
    return nullptr;
}

bool FirstStartAssistant::validateCurrentPage()
{
    if (currentId() == 0) {
        m_app.firstAssiTabAction(m_language->currentIndex());
        m_app.prefs().setBool(Preferences::centExactTotals, m_centExact->isChecked());
        static const char *const countries[] = {"US", "DE", "FR", "ES"};
        QLineEdit *country = field(Preferences::prefsCountryCode);
        if (country->text().isEmpty())
            country->setText(QLatin1String(countries[m_language->currentIndex()]));
        companyName()->setFocus();
    }
    return QWizard::validateCurrentPage();
}

void FirstStartAssistant::done(int result)
{
    using P = Preferences;
    Preferences &prefs = m_app.prefs();
    if (result == QDialog::Accepted) {
        for (const auto &[key, edit] : std::as_const(m_fields)) {
            QString value = edit->text().trimmed();
            if (key == P::prefsCountryCode || key == P::prefsIBAN || key == P::prefsBIC)
                value = value.toUpper();
            if (!value.isEmpty())
                prefs.setString(key, value);
        }
        // The block beside the address, unless one was written before.
        if (prefs.string(P::prefsContact).trimmed().isEmpty()) {
            QStringList contact;
            const QStringList lines = {prefs.string(P::prefsStreet),
                                       prefs.string(P::prefsPostcode) + QLatin1Char(' ') + prefs.string(P::prefsCity),
                                       prefs.string(P::prefsContactPhone), prefs.string(P::prefsContactEmail)};
            for (const QString &line : lines)
                if (!line.trimmed().isEmpty())
                    contact << line.trimmed();
            prefs.setString(P::prefsContact, contact.join(QLatin1Char('\n')));
        }
        m_app.composeFooters();
        prefs.setBool(P::isAssiDone, true);
    }
    prefs.sync();
    QWizard::done(result);
}

} // namespace tabo

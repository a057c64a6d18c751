#include "gui/FirstStartAssistant.h"

#include "app/AppController.h"
#include "prefs/Preferences.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
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
    addPage(languagePage);

    auto *companyPage = new QWizardPage;
    companyPage->setTitle(tr("Your company"));
    companyPage->setSubTitle(tr("These details head every document you send."));
    m_name = new QLineEdit;
    m_slogan = new QLineEdit;
    m_contact = new QPlainTextEdit;
    m_contact->setPlaceholderText(tr("Street\nPostcode and city\nPhone, e-mail, website"));
    m_contact->setTabChangesFocus(true);
    auto *companyLayout = new QFormLayout(companyPage);
    companyLayout->addRow(tr("Company name:"), m_name);
    companyLayout->addRow(tr("Slogan:"), m_slogan);
    companyLayout->addRow(tr("Contact:"), m_contact);
    addPage(companyPage);
}

bool FirstStartAssistant::validateCurrentPage()
{
    if (currentId() == 0) {
        m_app.firstAssiTabAction(m_language->currentIndex());
        m_name->setFocus();
    }
    return QWizard::validateCurrentPage();
}

void FirstStartAssistant::done(int result)
{
    Preferences &prefs = m_app.prefs();
    if (result == QDialog::Accepted) {
        if (!m_name->text().trimmed().isEmpty())
            prefs.setString(Preferences::prefsName, m_name->text().trimmed());
        if (!m_slogan->text().trimmed().isEmpty())
            prefs.setString(Preferences::prefsSlogan, m_slogan->text().trimmed());
        if (!m_contact->toPlainText().trimmed().isEmpty())
            prefs.setString(Preferences::prefsContact, m_contact->toPlainText().trimmed());
        prefs.setBool(Preferences::isAssiDone, true);
    }
    prefs.sync();
    QWizard::done(result);
}

} // namespace tabo

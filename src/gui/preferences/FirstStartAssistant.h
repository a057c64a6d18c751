#pragma once

#include "prefs/Preferences.h"

#include <QList>
#include <QWizard>

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace tabo {

class AppController;

// Shown once, on the first start: the language of the document texts (which
// installs that language's defaults) and the company's own details, from
// which the contact block and the documents' footers are composed.
class FirstStartAssistant : public QWizard
{
    Q_OBJECT

public:
    explicit FirstStartAssistant(AppController &app, QWidget *parent = nullptr);

    QComboBox *languageChoice() const { return m_language; }
    QLineEdit *companyName() const { return field(Preferences::prefsName); }
    // The field of one of the seller's details (prefsName, prefsStreet…).
    QLineEdit *field(Preferences::Key key) const;

protected:
    bool validateCurrentPage() override;
    void done(int result) override;

private:
    AppController &m_app;
    QComboBox *m_language = nullptr;
    QCheckBox *m_centExact = nullptr;
    QList<std::pair<Preferences::Key, QLineEdit *>> m_fields;
};

} // namespace tabo

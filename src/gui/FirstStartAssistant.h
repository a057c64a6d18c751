#pragma once

#include <QWizard>

class QComboBox;
class QLineEdit;
class QPlainTextEdit;

namespace tabo {

class AppController;

// Shown once, on the first start: the language of the document texts (which
// installs that language's defaults) and the company's own details.
class FirstStartAssistant : public QWizard
{
    Q_OBJECT

public:
    explicit FirstStartAssistant(AppController &app, QWidget *parent = nullptr);

    QComboBox *languageChoice() const { return m_language; }
    QLineEdit *companyName() const { return m_name; }

protected:
    bool validateCurrentPage() override;
    void done(int result) override;

private:
    AppController &m_app;
    QComboBox *m_language = nullptr;
    QLineEdit *m_name = nullptr;
    QLineEdit *m_slogan = nullptr;
    QPlainTextEdit *m_contact = nullptr;
};

} // namespace tabo

#pragma once

#include <QFrame>

class QLabel;

namespace tabo {

class AppController;

// The summary figures of what the list shows, in a bar under it.
class SummaryBar : public QFrame
{
    Q_OBJECT

public:
    explicit SummaryBar(AppController &app, QWidget *parent = nullptr);

private:
    void refresh();
    QLabel *addFigure(const QString &caption, const QString &name);

    AppController &m_app;
    QLabel *m_invoices;
    QLabel *m_quotes;
    QLabel *m_total;
    QLabel *m_paid;
    QLabel *m_due;
};

} // namespace tabo

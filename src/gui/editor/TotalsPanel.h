#pragma once

#include <QWidget>

class QGridLayout;
class QLabel;

namespace tabo {

class Preferences;
class Record;

// The document's totals under its lines, as the calculation left them.
class TotalsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit TotalsPanel(const Preferences &prefs, QWidget *parent = nullptr);

    void showDocument(const Record *document);

private:
    struct Row
    {
        QLabel *caption;
        QLabel *value;
    };
    Row addRow(const QString &caption, const QString &name, bool strong = false);
    static void setRowVisible(const Row &row, bool visible);

    const Preferences &m_prefs;
    QGridLayout *m_grid;
    Row m_net;
    Row m_tax[3];
    Row m_shipping;
    Row m_discount;
    Row m_gross;
};

} // namespace tabo

#pragma once

#include <QWidget>

class QLabel;

namespace tabo {

class Record;

// The strip above the editor's pages: which document this is, for whom, and
// what it comes to.
class DocumentHeader : public QWidget
{
    Q_OBJECT

public:
    explicit DocumentHeader(QWidget *parent = nullptr);

    void showDocument(const Record *document);

private:
    QLabel *m_heading;
    QLabel *m_details;
    QLabel *m_amount;
    QLabel *m_status;
};

} // namespace tabo

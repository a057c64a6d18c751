#pragma once

#include <QLabel>

namespace tabo {

// A red line under a field that explains why an entry was refused. It takes
// no room while there is nothing to say.
class HintLabel : public QLabel
{
    Q_OBJECT

public:
    explicit HintLabel(QWidget *parent = nullptr);

    void showMessage(const QString &message);
    void clearMessage();
};

} // namespace tabo

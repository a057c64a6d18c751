#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace tabo {

class AppController;
class HintLabel;

// The company logo in the preferences: a thumbnail that takes a dropped
// image file, with buttons to choose one and to remove it. What is not an
// image is refused with a note, and the logo stays as it was.
class LogoWell : public QWidget
{
    Q_OBJECT

public:
    explicit LogoWell(AppController &app, QWidget *parent = nullptr);

    // Reads the file into `prefsLogo`; false (and a note) when it is no image.
    bool setLogoFile(const QString &path);
    void removeLogo();
    void reload();
    QLabel *thumbnail() const { return m_thumb; }
    HintLabel *hint() const { return m_hint; }

    static constexpr qint64 kMaxBytes = 10 * 1024 * 1024;

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void choose();

    AppController &m_app;
    QLabel *m_thumb;
    QPushButton *m_remove;
    HintLabel *m_hint;
};

} // namespace tabo

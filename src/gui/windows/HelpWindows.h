#pragma once

#include <QDialog>

class QMenuBar;

namespace tabo {

// Help ▸ Keyboard Shortcuts: every command of the menus that has a key,
// under its menu, as the person's keyboard writes it.
class ShortcutsDialog : public QDialog
{
    Q_OBJECT

public:
    ShortcutsDialog(const QMenuBar *menus, QWidget *parent = nullptr);
};

// Help ▸ About Tabo: the version, the licence and the libraries Tabo runs on.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget *parent = nullptr);
};

// Help ▸ User Guide: the guide in the interface's language (else English),
// rendered from its Markdown with its screenshots.
class UserGuideWindow : public QDialog
{
    Q_OBJECT

public:
    explicit UserGuideWindow(QWidget *parent = nullptr);

    // The guide for `language` ("de"), else the English one; empty when the
    // guide is not installed.
    static QString guideFile(const QString &language);
};

} // namespace tabo

#pragma once

#include "prefs/Preferences.h"

#include <QHash>
#include <QList>
#include <QObject>

#include <functional>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QWidget;

namespace tabo {

class HintLabel;
class PlainTextField;

// Ties the preferences window's fields to preference keys. A value is
// written as soon as it is typed or chosen; one that cannot be right is
// refused next to its field with a short reason, and the stored value
// stays. Every field is named after its key.
class PrefsBinder : public QObject
{
    Q_OBJECT

public:
    // Empty when `text` can be stored, else the reason; `value` gets what
    // is stored.
    using Check = std::function<QString(const QString &text, QVariant *value)>;

    explicit PrefsBinder(Preferences &prefs, QObject *parent = nullptr);

    QLineEdit *text(Preferences::Key key);
    PlainTextField *block(Preferences::Key key, int lines = 3);
    QCheckBox *check(Preferences::Key key, const QString &label);
    // The value is the index of the choice.
    QComboBox *choice(Preferences::Key key, const QStringList &labels);
    // The value is the code of the choice (first of each pair; the second is shown).
    QComboBox *code(Preferences::Key key, const QList<std::pair<QString, QString>> &choices);
    // A whole number from `minimum` up.
    QLineEdit *number(Preferences::Key key, qint64 minimum, qint64 maximum, const QString &what);
    // A rate stored as a fraction and shown in percent.
    QLineEdit *rate(Preferences::Key key);
    // A numbering pattern, refused when it cannot tell documents apart.
    QLineEdit *pattern(Preferences::Key key);
    QLineEdit *checked(Preferences::Key key, Check check);

    // The line under a checked field (nullptr for the others).
    HintLabel *hintFor(const QWidget *field) const { return m_hints.value(field); }
    // Every field shows what is stored (after the language defaults).
    void reload();

Q_SIGNALS:
    void changed(tabo::Preferences::Key key);

private:
    struct Field
    {
        QWidget *widget;
        Preferences::Key key;
        std::function<void()> show;
    };
    void add(QWidget *widget, Preferences::Key key, std::function<void()> show);
    void write(Preferences::Key key, const QVariant &value);

    Preferences &m_prefs;
    QList<Field> m_fields;
    QHash<const QWidget *, HintLabel *> m_hints;
    bool m_loading = false;
};

} // namespace tabo

#include "gui/preferences/PrefsBinder.h"

#include "app/ItemCommands.h"
#include "domain/Numbering.h"
#include "domain/PrefRules.h"
#include "gui/widgets/HintLabel.h"
#include "gui/widgets/PlainTextField.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QLocale>

#include <cmath>

namespace tabo {

using P = Preferences;

PrefsBinder::PrefsBinder(Preferences &prefs, QObject *parent)
    : QObject(parent)
    , m_prefs(prefs)
{
}

void PrefsBinder::add(QWidget *widget, Preferences::Key key, std::function<void()> show)
{
    widget->setObjectName(Preferences::info(key).name);
    m_fields.append({widget, key, show});
    m_loading = true;
    show();
    m_loading = false;
}

void PrefsBinder::write(Preferences::Key key, const QVariant &value)
{
    if (m_loading)
        return;
    switch (Preferences::info(key).type) {
    case P::Type::Bool: m_prefs.setBool(key, value.toBool()); break;
    case P::Type::Int: m_prefs.setInteger(key, value.toLongLong()); break;
    case P::Type::Real: m_prefs.setReal(key, value.toDouble()); break;
    default: m_prefs.setString(key, value.toString()); break;
    }
    Q_EMIT changed(key);
}

QLineEdit *PrefsBinder::text(Preferences::Key key)
{
    auto *edit = new QLineEdit;
    add(edit, key, [this, edit, key] { edit->setText(m_prefs.string(key)); });
    connect(edit, &QLineEdit::textEdited, this, [this, key](const QString &t) { write(key, t); });
    return edit;
}

PlainTextField *PrefsBinder::block(Preferences::Key key, int lines)
{
    auto *edit = new PlainTextField;
    edit->setVisibleLines(lines);
    add(edit, key, [this, edit, key] { edit->setTextIfChanged(m_prefs.string(key)); });
    connect(edit, &QPlainTextEdit::textChanged, this, [this, edit, key] { write(key, edit->toPlainText()); });
    return edit;
}

QCheckBox *PrefsBinder::check(Preferences::Key key, const QString &label)
{
    auto *box = new QCheckBox(label);
    add(box, key, [this, box, key] { box->setChecked(m_prefs.boolean(key)); });
    connect(box, &QCheckBox::toggled, this, [this, key](bool on) { write(key, on); });
    return box;
}

QComboBox *PrefsBinder::choice(Preferences::Key key, const QStringList &labels)
{
    auto *combo = new QComboBox;
    combo->addItems(labels);
    add(combo, key, [this, combo, key] {
        const qint64 v = m_prefs.integer(key);
        // A value no choice stands for shows as none rather than as another.
        combo->setCurrentIndex(v >= 0 && v < combo->count() ? int(v) : -1);
    });
    connect(combo, &QComboBox::activated, this, [this, key](int index) { write(key, index); });
    return combo;
}

QComboBox *PrefsBinder::code(Preferences::Key key, const QList<std::pair<QString, QString>> &choices)
{
    auto *combo = new QComboBox;
    for (const auto &[value, label] : choices)
        combo->addItem(label, value);
    add(combo, key, [this, combo, key] { combo->setCurrentIndex(combo->findData(m_prefs.string(key))); });
    connect(combo, &QComboBox::activated, this,
            [this, combo, key](int index) { write(key, combo->itemData(index).toString()); });
    return combo;
}

QLineEdit *PrefsBinder::checked(Preferences::Key key, Check check)
{
    auto *edit = new QLineEdit;
    auto *hint = new HintLabel;
    m_hints.insert(edit, hint);
    add(edit, key, [this, edit, key, hint] {
        // What is stored is shown the way the field takes it.
        const QVariant stored = m_prefs.value(key);
        if (P::info(key).type == P::Type::Real) {
            edit->setText(QLocale().toString(m_prefs.real(key) * 100.0, 'g', 6));
        } else {
            edit->setText(stored.toString());
        }
        hint->clearMessage();
    });
    connect(edit, &QLineEdit::textEdited, this, [this, key, hint, check](const QString &t) {
        QVariant value;
        const QString reason = check(t, &value);
        hint->showMessage(reason);
        if (reason.isEmpty())
            write(key, value);
    });
    // Leaving a refused entry shows the value that stayed.
    connect(edit, &QLineEdit::editingFinished, this, [this, edit, key, hint, check] {
        QVariant value;
        if (check(edit->text(), &value).isEmpty())
            return;
        const QString reason = hint->text();
        for (const Field &f : std::as_const(m_fields)) {
            if (f.widget == edit)
                f.show();
        }
        hint->showMessage(reason + QLatin1Char(' ') + tr("The stored value stays."));
    });
    return edit;
}

QLineEdit *PrefsBinder::number(Preferences::Key key, qint64 minimum, qint64 maximum, const QString &what)
{
    return checked(key, [=](const QString &t, QVariant *value) {
        bool ok = false;
        const qint64 n = t.trimmed().toLongLong(&ok);
        if (!ok)
            return tr("%1 must be a whole number.").arg(what);
        if (n < minimum)
            return tr("%1 cannot be below %2.").arg(what).arg(minimum);
        if (n > maximum)
            return tr("%1 cannot be above %2.").arg(what).arg(maximum);
        *value = n;
        return QString();
    });
}

QLineEdit *PrefsBinder::rate(Preferences::Key key)
{
    return checked(key, [this](const QString &t, QVariant *value) {
        double percent = 0;
        if (!ItemCommands::parseNumber(t, &percent, QLocale(m_prefs.documentRegion())))
            return tr("The rate must be a number, such as 19 or 7.5.");
        if (percent < 0)
            return tr("The rate cannot be below 0 %.");
        if (percent > PrefRules::kMaxRate * 100)
            return tr("The rate cannot be above 1000 %.");
        *value = percent / 100.0;
        return QString();
    });
}

QLineEdit *PrefsBinder::pattern(Preferences::Key key)
{
    return checked(key, [](const QString &t, QVariant *value) {
        const QString reason = Numbering::patternRefusal(t);
        if (reason.isEmpty())
            *value = t;
        return reason;
    });
}

void PrefsBinder::reload()
{
    m_loading = true;
    for (const Field &f : std::as_const(m_fields))
        f.show();
    m_loading = false;
}

} // namespace tabo

#include "gui/widgets/FieldBinder.h"

#include "app/AppController.h"
#include "app/ItemCommands.h"
#include "base/Clock.h"
#include "domain/Record.h"
#include "gui/widgets/Formats.h"
#include "gui/widgets/HintLabel.h"
#include "gui/widgets/PlainTextField.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QDateEdit>
#include <QLineEdit>

namespace tabo {

namespace {

constexpr const char *kPendingDate = "taboPendingDate";

QDate localDate(const Date &date)
{
    return date.isValid() ? date.toDateTime().toLocalTime().date() : QDate();
}

// A date picked in the editor keeps the time of day the record had, so that
// moving a due date by a day does not also move it by hours.
Date withDay(const Date &old, QDate day)
{
    const QTime time = old.isValid() ? old.toDateTime().toLocalTime().time() : QTime(12, 0);
    return Date::fromDateTime(QDateTime(day, time));
}

} // namespace

FieldBinder::FieldBinder(AppController &app, QObject *parent)
    : QObject(parent)
    , m_app(app)
{
}

const QString &FieldBinder::notANumber()
{
    static const QString text = tr("Please enter a number, for example 12.50.");
    return text;
}

void FieldBinder::add(QWidget *widget, int attr, Kind kind, HintLabel *hint)
{
    widget->setObjectName(entityDesc(EntityId::Invoice).attributes[attr].name);
    widget->setEnabled(false);
    m_bindings.append({ widget, attr, kind, hint, {} });
}

const FieldBinder::Binding *FieldBinder::bindingOf(const QWidget *widget) const
{
    for (const Binding &b : m_bindings)
        if (b.widget == widget)
            return &b;
    return nullptr;
}

void FieldBinder::bindText(QLineEdit *edit, int attr)
{
    add(edit, attr, Kind::Text);
    connect(edit, &QLineEdit::editingFinished, this, [this, edit] { commit(*bindingOf(edit)); });
}

void FieldBinder::bindPlainText(PlainTextField *edit, int attr)
{
    add(edit, attr, Kind::PlainText);
    connect(edit, &PlainTextField::editingFinished, this, [this, edit] { commit(*bindingOf(edit)); });
}

void FieldBinder::bindNumber(QLineEdit *edit, int attr, HintLabel *hint)
{
    add(edit, attr, Kind::Number, hint);
    edit->setAlignment(Qt::AlignRight);
    connect(edit, &QLineEdit::editingFinished, this, [this, edit] { commit(*bindingOf(edit)); });
}

void FieldBinder::bindDate(QDateEdit *edit, int attr)
{
    add(edit, attr, Kind::DateField);
    edit->setCalendarPopup(true);
    edit->setDisplayFormat(Formats::dateFieldFormat());
    // Typing changes the date digit by digit: only the finished entry counts.
    // A day picked in the calendar is finished at once.
    connect(edit, &QDateEdit::editingFinished, this, [this, edit] { commit(*bindingOf(edit)); });
    connect(edit->calendarWidget(), &QCalendarWidget::clicked, this, [this, edit] { commit(*bindingOf(edit)); });
    // Only what the person changed is pending: a date that differs because the
    // record changed elsewhere must be refreshed, not written back.
    connect(edit, &QDateEdit::dateChanged, this, [this, edit] {
        if (!m_loading)
            edit->setProperty(kPendingDate, true);
    });
}

void FieldBinder::bindCheck(QCheckBox *box, int attr)
{
    add(box, attr, Kind::Check);
    connect(box, &QCheckBox::clicked, this, [this, box] { commit(*bindingOf(box)); });
}

void FieldBinder::load(Record *document)
{
    const bool force = document != m_doc;
    m_doc = document;
    m_loading = true;
    for (const Binding &b : std::as_const(m_bindings))
        show(b, force);
    m_loading = false;
}

void FieldBinder::show(const Binding &b, bool force)
{
    b.widget->setEnabled(m_doc != nullptr);
    if (!force && isPending(b))
        return;
    b.shown = m_doc ? m_doc->value(b.attr) : QVariant();
    if (b.hint && force)
        b.hint->clearMessage();
    switch (b.kind) {
    case Kind::Text:
    case Kind::Number: {
        auto *edit = static_cast<QLineEdit *>(b.widget);
        QString text;
        if (m_doc)
            text = b.kind == Kind::Text ? m_doc->text(b.attr) : Formats::plainMoney(m_doc->num(b.attr));
        if (edit->text() != text)
            edit->setText(text);
        edit->setModified(false);
        if (b.hint)
            b.hint->clearMessage();
        break;
    }
    case Kind::PlainText:
        static_cast<PlainTextField *>(b.widget)->setTextIfChanged(m_doc ? m_doc->text(b.attr) : QString());
        break;
    case Kind::DateField: {
        QDate day = m_doc ? localDate(m_doc->date(b.attr)) : QDate();
        if (!day.isValid())
            day = localDate(now());
        static_cast<QDateEdit *>(b.widget)->setDate(day);
        b.widget->setProperty(kPendingDate, false);
        break;
    }
    case Kind::Check:
        static_cast<QCheckBox *>(b.widget)->setChecked(m_doc && m_doc->boolean(b.attr));
        break;
    }
}

bool FieldBinder::isPending(const Binding &b) const
{
    switch (b.kind) {
    case Kind::Text:
    case Kind::Number:
        return static_cast<QLineEdit *>(b.widget)->isModified();
    case Kind::PlainText:
        return static_cast<PlainTextField *>(b.widget)->isModified();
    case Kind::DateField:
        return m_doc && b.widget->property(kPendingDate).toBool()
               && static_cast<QDateEdit *>(b.widget)->date() != localDate(m_doc->date(b.attr));
    case Kind::Check:
        break;
    }
    return false;
}

void FieldBinder::commitPending()
{
    // A document that went away (deleted, or the store was moved) takes its
    // unfinished edits with it; its record must not be touched.
    if (!m_doc || !m_app.documentList().all().contains(m_doc))
        return;
    for (const Binding &b : std::as_const(m_bindings))
        if (isPending(b))
            commit(b);
}

void FieldBinder::commit(const Binding &b)
{
    if (m_loading || !m_doc)
        return;
    QVariant value;
    switch (b.kind) {
    case Kind::Text: {
        auto *edit = static_cast<QLineEdit *>(b.widget);
        value = edit->text();
        edit->setModified(false);
        break;
    }
    case Kind::Number: {
        auto *edit = static_cast<QLineEdit *>(b.widget);
        const QString text = edit->text().trimmed();
        double number = 0.0;
        if (!text.isEmpty() && !m_app.items().parseInRegion(text, &number)) {
            if (b.hint)
                b.hint->showMessage(notANumber());
            return; // the entry stays for the person to correct
        }
        if (b.hint)
            b.hint->clearMessage();
        edit->setModified(false);
        value = number;
        break;
    }
    case Kind::PlainText: {
        auto *edit = static_cast<PlainTextField *>(b.widget);
        value = edit->toPlainText();
        edit->setModified(false);
        break;
    }
    case Kind::DateField: {
        const QDate day = static_cast<QDateEdit *>(b.widget)->date();
        b.widget->setProperty(kPendingDate, false);
        if (day == localDate(m_doc->date(b.attr)))
            return;
        value = QVariant::fromValue(withDay(m_doc->date(b.attr), day));
        break;
    }
    case Kind::Check:
        value = static_cast<QCheckBox *>(b.widget)->isChecked();
        break;
    }
    const QVariant startedFrom = b.shown; // a refresh during the commit shows the stored value
    if (!m_app.setDocumentValue(m_doc, b.attr, value, startedFrom))
        show(b, true); // the stored value stays, and the field says so
    else
        b.shown = m_doc->value(b.attr);
}

} // namespace tabo

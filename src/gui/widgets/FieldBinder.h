#pragma once

#include <QList>
#include <QObject>
#include <QVariant>

class QCheckBox;
class QDateEdit;
class QLineEdit;
class QWidget;

namespace tabo {

class AppController;
class HintLabel;
class PlainTextField;
class Record;

// Ties editor fields to attributes of the current document. A field writes
// its attribute when the person is done with it (Record::setValue) and hands
// the document to the controller's change observer, which recalculates and
// saves; the fields only ever show what the record holds.
class FieldBinder : public QObject
{
    Q_OBJECT

public:
    explicit FieldBinder(AppController &app, QObject *parent = nullptr);

    // Each bound widget is named after its attribute, which is how tests and
    // accessibility tools find it.
    void bindText(QLineEdit *edit, int attr);
    void bindPlainText(PlainTextField *edit, int attr);
    // Refuses what is not a number with a message in `hint`.
    void bindNumber(QLineEdit *edit, int attr, HintLabel *hint);
    void bindDate(QDateEdit *edit, int attr);
    void bindCheck(QCheckBox *box, int attr);

    // Shows `document`. Fields with unfinished edits keep them unless the
    // document itself changes.
    void load(Record *document);
    Record *document() const { return m_doc; }
    // Writes unfinished edits to the document shown (before another is).
    void commitPending();

    static const QString &notANumber();

private:
    enum class Kind { Text, PlainText, Number, DateField, Check };
    struct Binding
    {
        QWidget *widget;
        int attr;
        Kind kind;
        HintLabel *hint;
        // What the record held when the field last showed it: the value an
        // edit started from, so a change made elsewhere meanwhile is seen.
        mutable QVariant shown;
    };

    void add(QWidget *widget, int attr, Kind kind, HintLabel *hint = nullptr);
    void commit(const Binding &binding);
    bool isPending(const Binding &binding) const;
    void show(const Binding &binding, bool force);
    const Binding *bindingOf(const QWidget *widget) const;

    AppController &m_app;
    Record *m_doc = nullptr;
    QList<Binding> m_bindings;
    bool m_loading = false;
};

} // namespace tabo

#include "gui/widgets/Accessibility.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace tabo::Accessibility {

namespace {

bool isField(const QWidget *w)
{
    return qobject_cast<const QLineEdit *>(w) || qobject_cast<const QComboBox *>(w)
        || qobject_cast<const QAbstractSpinBox *>(w) || qobject_cast<const QPlainTextEdit *>(w)
        || qobject_cast<const QTextEdit *>(w) || qobject_cast<const QAbstractItemView *>(w);
}

// The first field an item holds: the widget itself, or the first field of
// a nested row.
QWidget *firstField(QLayoutItem *item)
{
    if (!item)
        return nullptr;
    if (QWidget *w = item->widget())
        return isField(w) ? w : nullptr;
    if (QLayout *inner = item->layout()) {
        for (int i = 0; i < inner->count(); ++i)
            if (QWidget *w = firstField(inner->itemAt(i)))
                return w;
    }
    return nullptr;
}

QWidget *fieldBeside(QLayout *layout, QLabel *label)
{
    const int index = layout->indexOf(label);
    if (index < 0)
        return nullptr;
    if (auto *grid = qobject_cast<QGridLayout *>(layout)) {
        int row = 0, column = 0, rows = 0, columns = 0;
        grid->getItemPosition(index, &row, &column, &rows, &columns);
        if (QWidget *w = firstField(grid->itemAtPosition(row, column + columns)))
            return w;
        return firstField(grid->itemAtPosition(row + rows, column));
    }
    return firstField(layout->itemAt(index + 1));
}

} // namespace

void labelFields(QWidget *root)
{
    const QList<QLabel *> labels = root->findChildren<QLabel *>();
    const QList<QLayout *> layouts = root->findChildren<QLayout *>();
    for (QLabel *label : labels) {
        // A field wrapped with its hint line: the field itself is meant.
        if (QWidget *buddy = label->buddy(); buddy && !isField(buddy)) {
            for (QWidget *inner : buddy->findChildren<QWidget *>()) {
                if (isField(inner)) {
                    label->setBuddy(inner);
                    break;
                }
            }
        }
        if (!label->buddy() && label->text().trimmed().endsWith(QLatin1Char(':'))) {
            for (QLayout *layout : layouts) {
                if (QWidget *field = fieldBeside(layout, label)) {
                    label->setBuddy(field);
                    break;
                }
            }
        }
        // A reader finds a buddy only among the label's siblings.
        QWidget *field = label->buddy();
        if (field && field->parentWidget() != label->parentWidget() && field->accessibleName().isEmpty())
            field->setAccessibleName(label->text().remove(QLatin1Char('&')).trimmed());
    }
}

} // namespace tabo::Accessibility

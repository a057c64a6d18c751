#pragma once

#include <QKeySequence>
#include <QList>

namespace tabo {

// `keys`, then the desktop's own bindings of `standard` that are not among
// them: a sequence bound twice makes Qt run neither ("Ambiguous shortcut").
inline QList<QKeySequence> keysWith(QList<QKeySequence> keys, QKeySequence::StandardKey standard)
{
    for (const QKeySequence &key : QKeySequence::keyBindings(standard))
        if (!keys.contains(key))
            keys << key;
    return keys;
}

} // namespace tabo

#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

namespace tabo::plist::detail {

// Written by hand: libplist's writer loses the sign of -0.0 and formats reals
// with the process locale.
class XmlWriter
{
public:
    Result<QByteArray> write(const QVariant &root);

private:
    bool value(const QVariant &raw, int depth);
    void line(int depth, const QByteArray &text)
    {
        m_out.append(QByteArray(depth, '\t'));
        m_out.append(text);
        m_out.append('\n');
    }
    void element(int depth, const char *tag, const QByteArray &content)
    {
        line(depth, '<' + QByteArray(tag) + '>' + content + "</" + QByteArray(tag) + '>');
    }
    bool fail(const QString &reason)
    {
        m_error = reason;
        return false;
    }

    QByteArray m_out;
    QString m_error;
};

// Through libplist, with the nesting checked beforehand and the numeric
// locale pinned to C while it parses.
Result<QVariant> readXml(const QByteArray &data);

} // namespace tabo::plist::detail

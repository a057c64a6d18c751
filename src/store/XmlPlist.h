#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

namespace tabo::plist::detail {

// Written by hand: libplist's writer loses the sign of -0.0 and formats reals
// with the process locale.
class XmlWriter
{
public:
    QByteArray write(const QVariant &root, QString *error);

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
QVariant readXml(const QByteArray &data, QString *error);

} // namespace tabo::plist::detail

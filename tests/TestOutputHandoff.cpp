// The hand-off to `lp` and `xdg-email`, run against stand-in programs that
// write down the arguments they were given.

#include "app/Interaction.h"
#include "render/MailHandoff.h"
#include "render/PrintSystem.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace tabo;

class TestOutputHandoff : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_bin;
    QByteArray m_oldPath;

    QString argsFile() const { return m_bin.filePath(QStringLiteral("args")); }

    // A stand-in that records its arguments, each ended by a NUL and ends with `exitCode`.
    void install(const QString &name, int exitCode)
    {
        QFile script(m_bin.filePath(name));
        QVERIFY(script.open(QIODevice::WriteOnly | QIODevice::Truncate));
        script.write(QStringLiteral("#!/bin/sh\n: > '%1'\nfor a in \"$@\"; do printf '%s\\000' \"$a\" >> '%1'; done\n"
                                    "echo 'refused: no such queue' >&2\nexit %2\n")
                         .arg(argsFile())
                         .arg(exitCode)
                         .toUtf8());
        script.close();
        QVERIFY(script.setPermissions(script.permissions() | QFileDevice::ExeOwner));
    }

    QStringList recorded() const
    {
        QFile f(argsFile());
        if (!f.open(QIODevice::ReadOnly))
            return {QStringLiteral("<not run>")};
        QStringList args = QString::fromUtf8(f.readAll()).split(QChar(0));
        args.removeLast(); // after the last NUL
        return args;
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_oldPath = qgetenv("PATH");
        // Only the stand-ins (shell built-ins do the rest): a real lp must
        // never be reached.
        qputenv("PATH", m_bin.path().toUtf8());
    }
    void cleanupTestCase() { qputenv("PATH", m_oldPath); }
    void init()
    {
        QFile::remove(argsFile());
        QFile::remove(m_bin.filePath(QStringLiteral("lp")));
        QFile::remove(m_bin.filePath(QStringLiteral("xdg-email")));
    }

    void printing()
    {
        PrintRequest request;
        request.jobTitle = QStringLiteral("ACME | Website | 2024-17");
        install(QStringLiteral("lp"), 0);
        QVERIFY(!PrintSystem::printFile(QStringLiteral("/tmp/Invoice.pdf"), request));
        QCOMPARE(recorded(), (QStringList{QStringLiteral("-t"), request.jobTitle, QStringLiteral("/tmp/Invoice.pdf")}));

        request.printer = QStringLiteral("Office");
        request.copies = 3;
        request.options = QStringList{QStringLiteral("media=A4"), QStringLiteral("sides=two-sided-long-edge")};
        QVERIFY(!PrintSystem::printFile(QStringLiteral("/tmp/Invoice.pdf"), request));
        QCOMPARE(recorded(), (QStringList{QStringLiteral("-d"), QStringLiteral("Office"), QStringLiteral("-t"),
                                          request.jobTitle, QStringLiteral("-n"), QStringLiteral("3"),
                                          QStringLiteral("-o"), QStringLiteral("media=A4"), QStringLiteral("-o"),
                                          QStringLiteral("sides=two-sided-long-edge"), QStringLiteral("/tmp/Invoice.pdf")}));

        install(QStringLiteral("lp"), 1);
        Error error = PrintSystem::printFile(QStringLiteral("/tmp/Invoice.pdf"), request);
        QVERIFY2(error.message().contains(QStringLiteral("refused: no such queue")), qPrintable(error.message()));

        QFile::remove(m_bin.filePath(QStringLiteral("lp")));
        error = PrintSystem::printFile(QStringLiteral("/tmp/Invoice.pdf"), request);
        QVERIFY2(error.message().contains(QStringLiteral("\"lp\"")), qPrintable(error.message()));
    }

    void mail()
    {
        MailMessage message{QStringLiteral("ACME | Website | 2024-17"), QStringLiteral("Dear client,\n\nthe invoice."),
                            QStringLiteral("/tmp/PDFInvoice.pdf"), QStringLiteral("client@example.com")};

        install(QStringLiteral("xdg-email"), 0);
        QVERIFY(!MailHandoff::compose(message));
        QCOMPARE(recorded(), (QStringList{QStringLiteral("--subject"), message.subject, QStringLiteral("--body"),
                                          message.body,
                                          QStringLiteral("--attach"), message.attachment, message.recipient}));

        // No body and no recipient: neither is passed at all.
        message.body.clear();
        message.recipient.clear();
        QVERIFY(!MailHandoff::compose(message));
        QCOMPARE(recorded(), (QStringList{QStringLiteral("--subject"), message.subject, QStringLiteral("--attach"),
                                          message.attachment}));

        // The person reads why in words, never the tool's own output.
        install(QStringLiteral("xdg-email"), 3);
        QCOMPARE(MailHandoff::compose(message).text, QStringLiteral("No e-mail program is set up on this computer."));
        install(QStringLiteral("xdg-email"), 4);
        const QString refused = MailHandoff::compose(message).text;
        QVERIFY2(!refused.contains(QStringLiteral("queue")) && refused.startsWith(QStringLiteral("The e-mail program")),
                 qPrintable(refused));

        QFile::remove(m_bin.filePath(QStringLiteral("xdg-email")));
        QCOMPARE(MailHandoff::compose(message).text, MailHandoff::noMailProgram());
    }
};

QTEST_GUILESS_MAIN(TestOutputHandoff)
#include "TestOutputHandoff.moc"

#include "cli/AddressCommand.h"

#include "app/AppController.h"
#include "app/DocumentCommands.h"
#include "cli/Console.h"
#include "cli/Session.h"
#include "domain/Contacts.h"
#include "prefs/Preferences.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(AddressCommand)
};
} // namespace

namespace tabo::cli {

namespace {

const QStringList kKeys{QStringLiteral("address"),       QStringLiteral("clientNumber"),
                        QStringLiteral("emailAddress"),  QStringLiteral("customerVATID"),
                        QStringLiteral("customerTitle"), QStringLiteral("firstName"),
                        QStringLiteral("lastName")};

const QStringList &allKeys()
{
    static const QStringList keys = kKeys + QStringList(Buyer::kKeys.begin(), Buyer::kKeys.end());
    return keys;
}

QString *field(AddressFields &f, const QString &key)
{
    QString *const fields[] = {&f.address,       &f.clientNumber, &f.emailAddress, &f.customerVATID,
                               &f.customerTitle, &f.firstName,    &f.lastName};
    const qsizetype i = kKeys.indexOf(key);
    return i >= 0 ? fields[i] : &f.buyer[std::size_t(allKeys().indexOf(key) - kKeys.size())];
}

} // namespace

AddressCommand::AddressCommand(Session &session)
    : Command(session, QStringLiteral("address"), QStringLiteral("ID [--vcard FILE [--contact N]] [KEY=VALUE...]"),
        Tr::tr("Set a document's client as the address popover does, from contact N (default 1) "
               "of a vCard file by the address pattern and from the keys ")
            + allKeys().join(QStringLiteral(", "))
            + Tr::tr(". Fields not given are empty, as in a fresh popover. The address is "
                     "remembered unless it already is."))
{
}

bool AddressCommand::fromVCard(const QString &path, int number, AddressFields *fields)
{
    const Result<QList<Contact>> read = Contacts::readVCardFile(path);
    if (!read) {
        printError(read.error().text);
        return false;
    }
    const QList<Contact> &contacts = read.value();
    if (number > contacts.size()) {
        printError(
            Tr::tr("The vCard file holds %1 contact(s); there is no contact %2.").arg(contacts.size()).arg(number));
        return false;
    }
    QString reason;
    if (!Contacts::fieldsFromContact(m_session.prefs(), contacts.at(number - 1), fields, &reason)) {
        printError(reason);
        return false;
    }
    return true;
}

int AddressCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption vcard(
        QStringLiteral("vcard"), Tr::tr("Take the contact from a vCard file."), QStringLiteral("FILE"));
    const QCommandLineOption contact(
        QStringLiteral("contact"), Tr::tr("Which contact of the file, 1 for the first."), QStringLiteral("N"));
    parser.addOptions({vcard, contact});
    int code = kExitOk;
    if (!parse(parser, args, 1, -1, &code))
        return code;
    QStringList pos = parser.positionalArguments();
    const QString id = pos.takeFirst();
    KeyValues values;
    if (!splitKeyValues(pos, allKeys(), &values, &code))
        return code;
    if (!parser.isSet(vcard) && values.isEmpty())
        return usageError(Tr::tr("Give a vCard file or at least one field."));
    int number = 1;
    if (parser.isSet(contact)) {
        bool ok = false;
        number = parser.value(contact).toInt(&ok);
        if (!parser.isSet(vcard))
            return usageError(Tr::tr("--contact needs --vcard."));
        if (!ok || number < 1)
            return usageError(Tr::tr("“%1” is not a contact number.").arg(parser.value(contact)));
    }

    Record *doc = m_session.select(id);
    if (!doc)
        return kExitFailure;
    AddressFields fields;
    if (parser.isSet(vcard) && !fromVCard(parser.value(vcard), number, &fields))
        return kExitFailure;
    for (const auto &[key, value] : std::as_const(values))
        *field(fields, key) = value;
    // Whichever of the text and the parts is given makes the other.
    m_session.controller().documents().useAddress(*doc, fields);
    return m_session.ui().errorPresented() ? kExitFailure : kExitOk;
}

} // namespace tabo::cli

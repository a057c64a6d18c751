#pragma once

#include "base/Result.h"

#include <QList>

#include <array>
#include <QString>

namespace tabo {

class Preferences;
class Record;
class RecordOwner;

// One person or company read from a vCard (3.0 or 4.0): the preferred postal
// address and e-mail address.
struct Contact
{
    QString firstName;
    QString lastName;
    QString organization;
    QString street;
    QString city;
    QString zip;
    QString state;
    QString country;
    QString email;
    QString displayName() const;
};

// What e-invoices need of the buyer beyond the address text, kept alike by
// documents and remembered addresses under the attribute names `kKeys`.
struct Buyer
{
    QString company;
    QString street;
    QString postcode;
    QString city;
    QString countryCode;
    QString buyerReference; // a public authority's Leitweg-ID
    QString electronicAddress;

    static constexpr std::size_t kCount = 7;
    // The attribute names, in the order of the members.
    static const std::array<QString, kCount> kKeys;
    // By position, for the forms and the command line that walk every part.
    QString &operator[](std::size_t i);
    const QString &operator[](std::size_t i) const;
    // None of the parts of the postal address is filled in.
    bool hasNoAddress() const;
    bool isEmpty() const;
    bool operator==(const Buyer &) const = default;
};

// The address popover's fields.
struct AddressFields
{
    QString address;
    QString clientNumber;
    QString emailAddress;
    QString customerVATID;
    QString customerTitle;
    QString firstName;
    QString lastName;
    Buyer buyer;
};

namespace Contacts {

// The buyer's parts of a document or a remembered address.
Buyer buyerOf(const Record &record);
void setBuyer(Record &record, const Buyer &buyer);
// An ISO 3166-1 code for a country as written ("Deutschland", "France",
// "de"); empty when unknown.
QString countryCode(const QString &country);

// Every usable contact of a vCard file; an empty list with a reason when the
// data is not a vCard or holds none.
Result<QList<Contact>> parseVCards(const QByteArray &data);
Result<QList<Contact>> readVCardFile(const QString &path);

// `prefsAddressPattern` filled from a contact.
QString formatAddress(const QString &pattern, const Contact &contact);
// selectAddressRecord: the popover fields from a contact, or false (and the
// message) when the address pattern is empty.
bool fieldsFromContact(const Preferences &prefs, const Contact &contact, AddressFields *fields,
                       QString *message);

// The client name by `clientNamePatternTag`.
QString customerName(qint64 clientNamePatternTag, const QString &title, const QString &first,
                     const QString &last);

// selectAddress: copies the fields into the document and remembers the
// address unless one with the same text exists. Returns the new Address
// record, or nullptr when it was already known.
Record *selectAddress(RecordOwner &store, Record &document, const AddressFields &fields,
                      qint64 clientNamePatternTag);

// The printed address block from its parts, in the order the country's post
// reads it ("20095 Hamburg", "Springfield, IL 62704"); the country is named
// only when it is not `homeCountry` (an ISO code).
QString composeAddress(const Buyer &buyer, const QString &homeCountry);
// The parts of a typed or pasted address block: company, street, postcode,
// city and country; the other parts, and what the block does not say, stay
// as in `known`.
Buyer partsOfAddress(const QString &block, Buyer known = {});
// One address: the block is composed from the parts when it is empty, and
// the parts are read from the block when they are.
void completeAddress(AddressFields &fields, const QString &homeCountry);

// The client as lists and questions name it: the name built from the
// contact, else the first line of the typed address.
QString clientOf(const Record &document);

} // namespace Contacts

} // namespace tabo

#pragma once

#include "einvoice/CiiWriter.h"

namespace tabo::einvoice {

// The OASIS UBL 2.1 invoice of an invoice, UTF-8.
QByteArray writeUbl(const Model &invoice, Profile profile);

} // namespace tabo::einvoice

#include "app/AccountBook.h"

#include "app/Interaction.h"
#include "app/OutputCommands.h"
#include "app/Workspace.h"
#include "domain/DocumentList.h"
#include "domain/Record.h"
#include "prefs/Locations.h"
#include "prefs/Preferences.h"
#include "prefs/ProtectedFiles.h"
#include "render/PrinterDocument.h"

#include <QDir>
#include <QLocale>

#include <QCoreApplication>
#include <algorithm>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(AccountBook)
};
} // namespace

namespace tabo {

namespace {

using P = Preferences;

// "Helvetica Neue" where installed, else sans faces of the same metrics.
QString fontFamilies(const Preferences &prefs)
{
    QString families = QStringLiteral("'Helvetica Neue', 'Liberation Sans', 'DejaVu Sans', sans-serif");
    const QString chosen = prefs.string(P::tempBorderFont).trimmed();
    return chosen.isEmpty() ? families : QLatin1Char('\'') + chosen.toHtmlEscaped() + QStringLiteral("', ") + families;
}

// Three lines of eight cells; the widths are the book's columns.
QString table(const QString &fonts, const QStringList &c)
{
    const QString light = QStringLiteral("color: #555;");
    // Qt's rich text gives a table's font to no cell: the cells are styled. Sizes in px: the
    // page is drawn one unit a point, so 7px prints at 7 points.
    return QStringLiteral(
               "<html><head><style>td { font-size: 7px; font-family: %1; }</style></head><body>"
               "<table border=\"0\" width=\"100%\" cellpadding=\"1\" cellspacing=\"0\">"
               "<tr><td width=\"24\" align=\"right\"><b>%2</b></td><td width=\"4\"></td><td width=\"66\">%3</td>"
               "<td><b>%4</b> <span style=\"font-size: 6px\">%5</span></td><td width=\"70\" align=\"right\"><b>%6</b></td>"
               "<td width=\"6\"></td><td width=\"48\">%7</td><td width=\"8\"><b></b></td></tr>"
               "<tr><td></td><td></td><td style=\"%10\">%8</td><td style=\"%10\">%9</td>"
               "<td align=\"right\" style=\"%10\"><span style=\"font-size: 6px\">%11</span></td><td></td><td></td><td></td></tr>"
               "<tr><td colspan=\"8\" style=\"%10\"></td></tr></table></body></html>")
        .arg(fonts, c.value(0), c.value(1), c.value(2), c.value(3), c.value(4), c.value(5), c.value(6), c.value(7),
             light, c.value(8));
}

PrinterItem rowItem(const QString &html, double top, double bottom)
{
    PrinterItem item;
    item.html = html;
    item.leftMargin = item.rightMargin = 40;
    item.topMargin = top;
    item.bottomMargin = bottom;
    item.verticalInset = 3;
    return item;
}

} // namespace

QString AccountBook::cut(const QString &text, int length)
{
    return text.size() > length ? text.left(length).toHtmlEscaped() + QStringLiteral(" &hellip;") : text.toHtmlEscaped();
}

QString AccountBook::clientLine(const QString &address, const QString &clientNumber)
{
    QStringList lines = address.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (QString &line : lines)
        line = line.trimmed();
    const QString joined = lines.join(QStringLiteral(" \u00B7 "));
    const QString line = QStringLiteral("%1 | %2").arg(joined, clientNumber);
    return cut(line, 110).replace(QStringLiteral("\u00B7"), QStringLiteral("&middot;"));
}

QList<PrinterItem> AccountBook::items(const QList<Record *> &documents) const
{
    const Preferences &prefs = m_prefs;
    const QString fonts = fontFamilies(prefs);
    QList<PrinterItem> items;
    items << rowItem(QStringLiteral("<div style=\"text-align: right; font-family: %1; font-size: 17px;\">%2</div>"
                                    "<br /><br /><br />")
                         .arg(fonts, prefs.string(P::prefsName).toHtmlEscaped()),
                     0, 0);
    const auto label = [&](P::Key key) { return prefs.string(key).toHtmlEscaped(); };
    items << rowItem(table(fonts, {QStringLiteral("#"), label(P::locInvoiceNumber), label(P::locInvoice),
                                   label(P::locDescription), label(P::locTotal), label(P::locDue), QString(),
                                   QString(), label(P::locSubtotal)}),
                     10, 0);
    // The rule runs the width of the table: a line of underscores, cut at the edge.
    items << rowItem(QStringLiteral("<div style=\"white-space: nowrap; font-family: %1; font-size: 12px; color: #999;\">%2</div>")
                         .arg(fonts, QString(84, QLatin1Char('_'))),
                     -20, 20);

    QList<Record *> invoices;
    for (Record *doc : documents)
        if (doc->integer(Invoice::kind) == 1)
            invoices << doc;
    std::stable_sort(invoices.begin(), invoices.end(), [](const Record *a, const Record *b) {
        return a->num(Invoice::date) < b->num(Invoice::date);
    });
    // Dates and amounts as the documents print them, whatever the interface speaks.
    const QLocale locale(prefs.documentRegion());
    const auto day = [&](const Record &doc, int attr) {
        return doc.isNull(attr) ? QString()
                                : locale.toString(doc.date(attr).toDateTime().toLocalTime().date(), QLocale::ShortFormat);
    };
    const auto money = [&](const Record &doc, int attr) { return locale.toString(doc.num(attr), 'f', 2); };
    int running = 0;
    for (const Record *doc : std::as_const(invoices)) {
        ++running;
        PrinterItem item = rowItem(
            table(fonts, {QString::number(running), day(*doc, Invoice::date),
                          doc->text(Invoice::title).toHtmlEscaped(), cut(doc->text(Invoice::subject), 88),
                          money(*doc, Invoice::amount), day(*doc, Invoice::due),
                          doc->text(Invoice::number).toHtmlEscaped(),
                          clientLine(doc->text(Invoice::address), doc->text(Invoice::clientNumber)),
                          money(*doc, Invoice::subAmount)}),
            0, -6);
        if (running % 2 == 0)
            item.backgroundColor = QColor::fromRgbF(0.98, 0.98, 0.98);
        items << item;
    }
    return items;
}

bool AccountBook::writePdf(const QString &path, bool forPrint)
{
    if (const Error refused = ProtectedFiles::check(path)) {
        m_ui.presentError(refused);
        return false;
    }
    m_list.calculateDatabase();
    PrinterDocument book(items(m_list.documentList().shown()));
    book.topMargin = 60;
    book.bottomMargin = 40;
    book.footerView = PrinterTextView(
        QRectF(40, 0, 515, 40),
        QStringLiteral("<span style=\"font-family: %1; font-size: 6px; color: #777;\">"
                       "&lt;pageNumber/&gt; / &lt;pageCount/&gt;</span>")
            .arg(fontFamilies(m_prefs)));
    return book.writePdf(path, Tr::tr("%1 | Account Book").arg(m_prefs.string(P::prefsName)),
        forPrint ? QMarginsF(72, 40, 72, 40) : QMarginsF());
}

bool AccountBook::print()
{
    Preferences &prefs = m_prefs;
    if (!prefs.boolean(P::isAccountBookPrintHintShown)) {
        m_ui.alert(Tr::tr("Hint!"),
            Tr::tr("This feature is bound to the arranged invoices in Tabo's main window. This means you can, "
                   "for example, search for a client and therefore print out the account book just for this "
                   "single client or you can pre-filter all your invoices to print out the account book only "
                   "for paid or overdue invoices."),
            { Tr::tr("OK") });
        prefs.setBool(P::isAccountBookPrintHintShown, true);
    }
    QDir().mkpath(Locations::dataFolder());
    const QString path = QDir(Locations::dataFolder()).filePath(QStringLiteral("AccountBook.pdf"));
    if (!writePdf(path, true)) {
        m_ui.alert(Tr::tr("Error!"), Tr::tr("The account book could not be written."), { Tr::tr("OK") });
        return false;
    }
    return m_outputs.printPdf(path, Tr::tr("%1 | Account Book").arg(prefs.string(P::prefsName)));
}

} // namespace tabo

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AccountBook</name>
    <message>
        <source>Hint!</source>
        <translation>Hinweis!</translation>
    </message>
    <message>
        <source>This feature is bound to the arranged invoices in Tabo&apos;s main window. This means you can, for example, search for a client and therefore print out the account book just for this single client or you can pre-filter all your invoices to print out the account book only for paid or overdue invoices.</source>
        <translation>Diese Funktion ist an die geordneten Rechnungen im Hauptfenster von Tabo gebunden. So können Sie zum Beispiel nach einem Kunden suchen und das Kassenbuch nur für diesen Kunden drucken, oder alle Rechnungen vorfiltern, um das Kassenbuch nur für bezahlte oder überfällige Rechnungen zu drucken.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Fehler!</translation>
    </message>
    <message>
        <source>The account book could not be written.</source>
        <translation>Das Kassenbuch konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%1 | Account Book</source>
        <translation>%1 | Kassenbuch</translation>
    </message>
</context>
<context>
    <name>AccountBookCommand</name>
    <message>
        <source>Write the account book of the invoices a filter and search show as PDF.</source>
        <translation>Schreibt das Kassenbuch der Rechnungen, die Filter und Suche zeigen, als PDF.</translation>
    </message>
    <message>
        <source>The PDF to write.</source>
        <translation>Das zu schreibende PDF.</translation>
    </message>
    <message>
        <source>Give the PDF to write with --pdf FILE.</source>
        <translation>Geben Sie das zu schreibende PDF mit --pdf DATEI an.</translation>
    </message>
    <message>
        <source>The account book could not be written to “%1”.</source>
        <translation>Das Kassenbuch konnte nicht nach “%1” geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>AccountingExport</name>
    <message>
        <source>Send Invoices To quandrella</source>
        <translation>Rechnungen an quandrella senden</translation>
    </message>
    <message>
        <source>Send Invoices To Vorlux</source>
        <translation>Rechnungen an Vorlux senden</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Fehler!</translation>
    </message>
    <message>
        <source>Could not write Vorlux/quandrella export data.</source>
        <translation>Die Exportdaten für Vorlux/quandrella konnten nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Vorlux/quandrella export file couldn&apos;t be opened. Please ensure that Vorlux or quandrella is installed on your Mac and running.</source>
        <translation>Die Exportdatei für Vorlux/quandrella konnte nicht geöffnet werden. Bitte stellen Sie sicher, dass Vorlux oder quandrella auf Ihrem Mac installiert ist und läuft.</translation>
    </message>
</context>
<context>
    <name>AccountingExportCommand</name>
    <message>
        <source>First day.</source>
        <translation>Erster Tag.</translation>
    </message>
    <message>
        <source>Last day.</source>
        <translation>Letzter Tag.</translation>
    </message>
    <message>
        <source>Which invoices.</source>
        <translation>Welche Rechnungen.</translation>
    </message>
    <message>
        <source>How lines go over.</source>
        <translation>Wie Zeilen übernommen werden.</translation>
    </message>
    <message>
        <source>Only write the file.</source>
        <translation>Nur die Datei schreiben.</translation>
    </message>
    <message>
        <source>Unknown program “%1”.</source>
        <translation>Unbekanntes Programm “%1”.</translation>
    </message>
    <message>
        <source>“%1” is not an ISO 8601 date.</source>
        <translation>“%1” ist kein Datum nach ISO 8601.</translation>
    </message>
    <message>
        <source>The kind is 0, 1 or 2.</source>
        <translation>Die Art ist 0, 1 oder 2.</translation>
    </message>
    <message>
        <source>The items kind is 0 or 1.</source>
        <translation>Die Art der Artikel ist 0 oder 1.</translation>
    </message>
    <message>
        <source>Write the invoices in the date range (ISO 8601; by default all shown) and of a kind (0 all but created, 1 paid, 2 overdue) for an accounting program, with one summary line (items kind 0) or every line (1); kinds not given stay as last set. Opens the file unless --no-open. Prints the file and the number of invoices.</source>
        <translation>Schreibt die Rechnungen im Zeitraum (ISO 8601; standardmäßig alle angezeigten) und einer Art (0 alle außer erstellten, 1 bezahlt, 2 überfällig) für ein Buchhaltungsprogramm, mit einer Übersichtszeile (Artikelart 0) oder jeder Zeile (1); nicht angegebene Arten bleiben wie zuletzt gesetzt. Öffnet die Datei, außer mit --no-open. Gibt die Datei und die Anzahl der Rechnungen aus.</translation>
    </message>
</context>
<context>
    <name>AddItemCommand</name>
    <message>
        <source>“%1” is not a unit code of UN/ECE Recommendation 20 (such as HUR, C62, DAY).</source>
        <translation>“%1” ist kein Einheitencode der UN/ECE-Empfehlung 20 (etwa HUR, C62, DAY).</translation>
    </message>
    <message>
        <source>Add a line to a document as the item popover does, e.g. title=Consulting price=100 quantity=2 tax1=1 (also subtitle, unit, unitCode, sku, note; baseAmount, unitCount, isTax1Applied..3 are the same fields). Rates, tax titles and compound flags come from the preferences; any other line attribute is set afterwards. The catalogue remembers the line. Prints the line&apos;s unique ID.</source>
        <translation>Fügt einem Dokument eine Zeile hinzu wie das Artikelfenster, z. B. title=Beratung price=100 quantity=2 tax1=1 (auch subtitle, unit, unitCode, sku, note; baseAmount, unitCount, isTax1Applied..3 sind dieselben Felder). Sätze, Steuernamen und Zusammensetzung kommen aus den Einstellungen; jedes andere Zeilenattribut wird danach gesetzt. Der Katalog merkt sich die Zeile. Gibt die eindeutige ID der Zeile aus.</translation>
    </message>
</context>
<context>
    <name>AddressCommand</name>
    <message>
        <source>Set a document&apos;s client as the address popover does, from contact N (default 1) of a vCard file by the address pattern and from the keys </source>
        <translation>Setzt den Kunden eines Dokuments wie das Adressfenster: aus Kontakt N (standardmäßig 1) einer vCard-Datei nach dem Adressmuster und aus den Schlüsseln </translation>
    </message>
    <message>
        <source>Take the contact from a vCard file.</source>
        <translation>Kontakt aus einer vCard-Datei übernehmen.</translation>
    </message>
    <message>
        <source>Which contact of the file, 1 for the first.</source>
        <translation>Welcher Kontakt der Datei, 1 für den ersten.</translation>
    </message>
    <message>
        <source>Give a vCard file or at least one field.</source>
        <translation>Geben Sie eine vCard-Datei oder mindestens ein Feld an.</translation>
    </message>
    <message>
        <source>“%1” is not a contact number.</source>
        <translation>“%1” ist keine Kontaktnummer.</translation>
    </message>
    <message>
        <source>. Fields not given are empty, as in a fresh popover. The address is remembered unless it already is.</source>
        <translation>. Nicht angegebene Felder sind leer wie in einem frischen Adressfenster. Die Adresse wird gemerkt, sofern sie es nicht schon ist.</translation>
    </message>
    <message>
        <source>The vCard file holds %1 contact(s); there is no contact %2.</source>
        <translation>Die vCard-Datei enthält %1 Kontakt(e); es gibt keinen Kontakt %2.</translation>
    </message>
    <message>
        <source>--contact needs --vcard.</source>
        <translation>--contact braucht --vcard.</translation>
    </message>
</context>
<context>
    <name>AddressPopover</name>
    <message>
        <source>Error!</source>
        <translation>Fehler!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>AppController</name>
    <message>
        <source>Failed to initialize the store</source>
        <translation>Der Speicher konnte nicht eingerichtet werden</translation>
    </message>
    <message>
        <source>There was an error building up the data file.</source>
        <translation>Beim Aufbau der Datendatei ist ein Fehler aufgetreten.</translation>
    </message>
    <message>
        <source>Warning!</source>
        <translation>Warnung!</translation>
    </message>
    <message>
        <source>Tabo 2 comes with new features that require the database to be updated.
Once updated you will not be able to open and edit it with an older version of Tabo.

In case you don&apos;t want to upgrade to Tabo 2 - which is a paid upgrade - you need to quit Tabo 2 right now and just continue working with Tabo 1.

Do you want to update the database and use Tabo 2?</source>
        <translation>Tabo 2 bringt neue Funktionen mit, für die die Datenbank aktualisiert werden muss.
Nach der Aktualisierung können Sie sie mit einer älteren Version von Tabo nicht mehr öffnen und bearbeiten.

Wenn Sie nicht auf Tabo 2 umsteigen möchten – ein kostenpflichtiges Upgrade –, müssen Sie Tabo 2 jetzt beenden und einfach mit Tabo 1 weiterarbeiten.

Möchten Sie die Datenbank aktualisieren und Tabo 2 verwenden?</translation>
    </message>
    <message>
        <source>Don&apos;t Update Database and Quit Tabo 2</source>
        <translation>Datenbank nicht aktualisieren und Tabo 2 beenden</translation>
    </message>
    <message>
        <source>Update Database And Use Tabo 2</source>
        <translation>Datenbank aktualisieren und Tabo 2 verwenden</translation>
    </message>
    <message>
        <source>The folder “%1” could not be created.</source>
        <translation>Der Ordner “%1” konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Expected a folder to store application data, found a file (%1).</source>
        <translation>Ordner für Programmdaten erwartet, aber eine Datei gefunden (%1).</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Fehler!</translation>
    </message>
    <message>
        <source>

The empty file can be kept as “%1” and a new database started with the documents of the automatic backup “%2”.</source>
        <translation>

Die leere Datei kann als “%1” behalten und eine neue Datenbank mit den Dokumenten der automatischen Sicherung “%2” begonnen werden.</translation>
    </message>
    <message>
        <source>Restore Automatic Backup</source>
        <translation>Automatische Sicherung wiederherstellen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>“%1” could not be renamed.</source>
        <translation>“%1” konnte nicht umbenannt werden.</translation>
    </message>
    <message>
        <source>Changed Elsewhere</source>
        <translation>Anderswo geändert</translation>
    </message>
    <message>
        <source>“%1” was changed by another program (another Tabo window or tabo-cli) after it was read here. Keep your changes and overwrite the other ones, or reload the stored version and lose your changes?</source>
        <translation>“%1” wurde von einem anderen Programm (einem anderen Tabo-Fenster oder tabo-cli) geändert, nachdem es hier gelesen wurde. Ihre Änderungen behalten und die anderen überschreiben, oder die gespeicherte Fassung neu laden und Ihre Änderungen verlieren?</translation>
    </message>
    <message>
        <source>Keep My Changes</source>
        <translation>Meine Änderungen behalten</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Each line is rounded to the cent and the VAT of each rate is taken on the amount after the discount, which is what tax offices and e-invoices (EN 16931) expect.</source>
        <translation>Jede Zeile wird auf den Cent gerundet und die Umsatzsteuer jedes Satzes auf den Betrag nach dem Rabatt berechnet – so erwarten es Finanzämter und E-Rechnungen (EN 16931).</translation>
    </message>
    <message>
        <source>Compose Footers?</source>
        <translation>Fußzeilen zusammenstellen?</translation>
    </message>
    <message>
        <source>The footers of invoices, quotes, reminders and delivery slips are replaced by one made from your company&apos;s address, tax and bank details:

%1</source>
        <translation>Die Fußzeilen von Rechnungen, Angeboten, Mahnungen und Lieferscheinen werden durch eine ersetzt, die aus Adresse, Steuer- und Bankdaten Ihrer Firma zusammengestellt ist:

%1</translation>
    </message>
    <message>
        <source>Compose</source>
        <translation>Zusammenstellen</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>Änderungen konnten beim Beenden nicht gespeichert werden. Trotzdem beenden?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Wenn Sie jetzt beenden, gehen alle Änderungen seit dem letzten erfolgreichen Speichern verloren</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Trotzdem beenden</translation>
    </message>
    <message>
        <source>The folder “%1” does not exist.</source>
        <translation>Der Ordner “%1” existiert nicht.</translation>
    </message>
    <message>
        <source>The database could not be moved to “%1”.</source>
        <translation>Die Datenbank konnte nicht nach “%1” verschoben werden.</translation>
    </message>
    <message>
        <source>Hint!</source>
        <translation>Hinweis!</translation>
    </message>
    <message>
        <source>For your own safety Tabo will create a backup of your current data before moving your database to the changed location. You may want to save it temporarily on your desktop.

Afterwards Tabo will automatically restart.</source>
        <translation>Zu Ihrer Sicherheit sichert Tabo Ihre aktuellen Daten, bevor es die Datenbank an den neuen Ort verschiebt. Sie können die Sicherung vorübergehend auf Ihrem Schreibtisch ablegen.

Danach startet Tabo automatisch neu.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Choose Custom Database Path</source>
        <translation>Eigenen Datenbankpfad wählen</translation>
    </message>
    <message>
        <source>Install %1 Defaults?</source>
        <translation>Vorgaben für %1 installieren?</translation>
    </message>
    <message>
        <source>The labels, text blocks, numbering patterns and counters, taxes and paper size are replaced by the %1 defaults. Your company details, documents and designs stay as they are.</source>
        <translation>Bezeichnungen, Textbausteine, Nummernmuster und Zähler, Steuern und Papierformat werden durch die Vorgaben für %1 ersetzt. Ihre Firmendaten, Dokumente und Designs bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Database Updated</source>
        <translation>Datenbank aktualisiert</translation>
    </message>
    <message>
        <source>The database was successfully updated. In case your old invoices don&apos;t show up just restart Tabo 2 and everything will be fine.</source>
        <translation>Die Datenbank wurde erfolgreich aktualisiert. Falls Ihre alten Rechnungen nicht erscheinen, starten Sie Tabo 2 einfach neu, und alles ist gut.</translation>
    </message>
    <message>
        <source>Tabo, Tabo Documents, and the Tabo Database</source>
        <translation>Tabo, Tabo-Dokumente und die Tabo-Datenbank</translation>
    </message>
    <message>
        <source>In order to avoid duplicate entries, hiccups, and to keep the database intact - please use the &apos;File Menu&apos; to open documents and to restore the Tabo database.</source>
        <translation>Um doppelte Einträge und Störungen zu vermeiden und die Datenbank intakt zu halten, öffnen Sie Dokumente bitte über das Menü “Datei” und stellen Sie die Tabo-Datenbank auch dort wieder her.</translation>
    </message>
    <message>
        <source>“%1” of “%2” was changed by another program (another Tabo window or tabo-cli) while you were editing it.

Stored now: %3
Yours: %4

Keep your changes and overwrite the other ones, or reload the stored version and lose your changes?</source>
        <translation>“%1” von “%2” wurde von einem anderen Programm (einem anderen Tabo-Fenster oder tabo-cli) geändert, während Sie es bearbeitet haben.

Jetzt gespeichert: %3
Ihres: %4

Ihre Änderungen behalten und die anderen überschreiben, oder die gespeicherte Fassung neu laden und Ihre Änderungen verlieren?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Typing</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Due Date Before Invoice Date</source>
        <translation>Fälligkeit vor Rechnungsdatum</translation>
    </message>
    <message>
        <source>The invoice would be due on %1, before its own date, %2: it would be overdue the moment it is sent. Keep this due date?</source>
        <translation>Die Rechnung wäre am %1 fällig, vor ihrem eigenen Datum, dem %2: Sie wäre schon beim Versand überfällig. Dieses Fälligkeitsdatum behalten?</translation>
    </message>
    <message>
        <source>Keep Due Date</source>
        <translation>Fälligkeit behalten</translation>
    </message>
    <message>
        <source>Nothing was imported from “%1”.</source>
        <translation>Aus “%1” wurde nichts importiert.</translation>
    </message>
    <message>
        <source>It is an invoice dump, which no restore reads.</source>
        <translation>Sie ist ein Rechnungs-Dump, den keine Wiederherstellung liest.</translation>
    </message>
    <message>
        <source>Repeated Invoices</source>
        <translation>Wiederkehrende Rechnungen</translation>
    </message>
    <message>
        <source>Send Repeated Invoices</source>
        <translation>Wiederkehrende Rechnungen senden</translation>
    </message>
    <message>
        <source>These repeated invoices were written and are to be e-mailed:

%1

Open a message for each now?</source>
        <translation>Diese wiederkehrenden Rechnungen wurden geschrieben und sollen per E-Mail verschickt werden:

%1

Jetzt für jede eine Nachricht öffnen?</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
</context>
<context>
    <name>AttributeText</name>
    <message>
        <source>“%1” is not a valid %2 for %3.</source>
        <translation>“%1” ist kein gültiger Wert für %2 bei %3.</translation>
    </message>
    <message>
        <source>“%1” is a relationship of %2, not an attribute.</source>
        <translation>“%1” ist eine Beziehung von %2, kein Attribut.</translation>
    </message>
    <message>
        <source>“%1” is too large for %2 (at most %3).</source>
        <translation>“%1” ist zu groß für %2 (höchstens %3).</translation>
    </message>
    <message>
        <source>about 3.4e38</source>
        <translation>etwa 3,4e38</translation>
    </message>
    <message>
        <source>about 1.8e308</source>
        <translation>etwa 1,8e308</translation>
    </message>
</context>
<context>
    <name>BackupCommand</name>
    <message>
        <source>Back up the whole database (prints the .tabo2db written), the documents or the catalogue to FILE, or the documents to the automatic backup (prints its path).</source>
        <translation>Sichert die ganze Datenbank (gibt die geschriebene .tabo2db aus), die Dokumente oder den Katalog in DATEI, oder die Dokumente in die automatische Sicherung (gibt ihren Pfad aus).</translation>
    </message>
    <message>
        <source>The automatic backup has its own place.</source>
        <translation>Die automatische Sicherung hat ihren eigenen Ort.</translation>
    </message>
    <message>
        <source>The automatic backup “%1” could not be written. %2</source>
        <translation>Die automatische Sicherung “%1” konnte nicht geschrieben werden. %2</translation>
    </message>
    <message>
        <source>Missing FILE.</source>
        <translation>DATEI fehlt.</translation>
    </message>
    <message>
        <source>Unknown backup “%1”.</source>
        <translation>Unbekannte Sicherung “%1”.</translation>
    </message>
</context>
<context>
    <name>BackupCommands</name>
    <message>
        <source>Error!</source>
        <translation>Fehler!</translation>
    </message>
    <message>
        <source>Warning!</source>
        <translation>Warnung!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>Wiederherstellen…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>remembered addresses, which no restore replaces</source>
        <translation>gemerkte Adressen, die keine Wiederherstellung ersetzt</translation>
    </message>
    <message>
        <source>remembered shipping lines, which no restore replaces</source>
        <translation>gemerkte Versandzeilen, die keine Wiederherstellung ersetzt</translation>
    </message>
    <message>
        <source>records no restore replaces</source>
        <translation>Datensätze, die keine Wiederherstellung ersetzt</translation>
    </message>
    <message>
        <source>It is a PDF file.</source>
        <translation>Sie ist eine PDF-Datei.</translation>
    </message>
    <message>
        <source>It is an invoice dump, which no restore reads.</source>
        <translation>Sie ist ein Rechnungs-Dump, den keine Wiederherstellung liest.</translation>
    </message>
    <message>
        <source>It holds a single record, not a list of them.</source>
        <translation>Sie enthält einen einzelnen Datensatz, keine Liste.</translation>
    </message>
    <message>
        <source>It does not hold a list of records.</source>
        <translation>Sie enthält keine Liste von Datensätzen.</translation>
    </message>
    <message>
        <source>There is no database to back up.</source>
        <translation>Es gibt keine Datenbank zum Sichern.</translation>
    </message>
    <message>
        <source>No backup was taken: the database fails its check, and a backup of it would be no better. %1</source>
        <translation>Es wurde keine Sicherung angelegt: Die Datenbank besteht ihre Prüfung nicht, und eine Sicherung davon wäre nicht besser. %1</translation>
    </message>
    <message>
        <source>Unable to write %1: %2</source>
        <translation>%1 konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Entry %1 is not a record.</source>
        <translation>Eintrag %1 ist kein Datensatz.</translation>
    </message>
    <message>
        <source>It holds %1.</source>
        <translation>Sie enthält %1.</translation>
    </message>
    <message>
        <source>It could not be read.</source>
        <translation>Sie konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file “%1” is not a %2. %3</source>
        <translation>Die Datei “%1” ist keine %2. %3</translation>
    </message>
    <message>
        <source>There is no database to restore into.</source>
        <translation>Es gibt keine Datenbank, in die wiederhergestellt werden kann.</translation>
    </message>
    <message>
        <source>Backup Tabo Database</source>
        <translation>Tabo-Datenbank sichern</translation>
    </message>
    <message>
        <source>Tabo 2 Database</source>
        <translation>Tabo-2-Datenbank</translation>
    </message>
    <message>
        <source>You are about to restore your entire Tabo database from a backup. This will irretrievably replace any existing data. Do you really want to do that?</source>
        <translation>Sie sind dabei, Ihre gesamte Tabo-Datenbank aus einer Sicherung wiederherzustellen. Dabei werden alle vorhandenen Daten unwiderruflich ersetzt. Möchten Sie das wirklich?</translation>
    </message>
    <message>
        <source>Restore Tabo 2 Database</source>
        <translation>Tabo-2-Datenbank wiederherstellen</translation>
    </message>
    <message>
        <source>The file “%1” could not be restored. No working copy could be made beside the database.</source>
        <translation>Die Datei “%1” konnte nicht wiederhergestellt werden. Neben der Datenbank konnte keine Arbeitskopie angelegt werden.</translation>
    </message>
    <message>
        <source>The file “%1” could not be restored. %2</source>
        <translation>Die Datei “%1” konnte nicht wiederhergestellt werden. %2</translation>
    </message>
    <message>
        <source>The file “%1” is not a Tabo database backup. %2</source>
        <translation>Die Datei “%1” ist keine Sicherung einer Tabo-Datenbank. %2</translation>
    </message>
    <message>
        <source>The database could not be restored from “%1”. %2 Your previous data are still in place.</source>
        <translation>Die Datenbank konnte nicht aus “%1” wiederhergestellt werden. %2 Ihre bisherigen Daten sind noch vorhanden.</translation>
    </message>
    <message>
        <source>Backup Tabo Invoices</source>
        <translation>Tabo-Rechnungen sichern</translation>
    </message>
    <message>
        <source>Tabo Invoices</source>
        <translation>Tabo-Rechnungen</translation>
    </message>
    <message>
        <source>You are about to restore your Tabo invoices from a backup. This will irretrievably replace any existing invoices. Do you really want to do that?</source>
        <translation>Sie sind dabei, Ihre Tabo-Rechnungen aus einer Sicherung wiederherzustellen. Dabei werden alle vorhandenen Rechnungen unwiderruflich ersetzt. Möchten Sie das wirklich?</translation>
    </message>
    <message>
        <source>Restore Tabo Invoices</source>
        <translation>Tabo-Rechnungen wiederherstellen</translation>
    </message>
    <message>
        <source>Backup Tabo Items</source>
        <translation>Tabo-Artikel sichern</translation>
    </message>
    <message>
        <source>Tabo Items</source>
        <translation>Tabo-Artikel</translation>
    </message>
    <message>
        <source>You are about to restore your Tabo items from a backup. This will irretrievably replace any existing items. Do you really want to do that?</source>
        <translation>Sie sind dabei, Ihre Tabo-Artikel aus einer Sicherung wiederherzustellen. Dabei werden alle vorhandenen Artikel unwiderruflich ersetzt. Möchten Sie das wirklich?</translation>
    </message>
    <message>
        <source>Restore Tabo Items</source>
        <translation>Tabo-Artikel wiederherstellen</translation>
    </message>
    <message>
        <source>Tabo invoice backup</source>
        <translation>Tabo-Rechnungssicherung</translation>
    </message>
    <message>
        <source>Tabo item backup</source>
        <translation>Tabo-Artikelsicherung</translation>
    </message>
    <message>
        <source>No valid backup file available. Please restore your Tabo database from your own (Time Machine) backups.</source>
        <translation>Keine gültige Sicherungsdatei vorhanden. Bitte stellen Sie Ihre Tabo-Datenbank aus Ihren eigenen (Time Machine-)Sicherungen wieder her.</translation>
    </message>
    <message>
        <source>Could not restore Tabo database automatically. Please do this by hand. In case of problems, simply contact the Pemra support.</source>
        <translation>Die Tabo-Datenbank konnte nicht automatisch wiederhergestellt werden. Bitte tun Sie dies von Hand. Bei Problemen wenden Sie sich einfach an den Pemra-Support.</translation>
    </message>
    <message>
        <source>No working copy could be made beside the database.</source>
        <translation>Neben der Datenbank konnte keine Arbeitskopie angelegt werden.</translation>
    </message>
    <message>
        <source>Failed to create writable database file with message &apos;%1&apos;.</source>
        <translation>Beschreibbare Datenbankdatei konnte nicht angelegt werden, Meldung: &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The database “%1” cannot be used.</source>
        <translation>Die Datenbank “%1” kann nicht verwendet werden.</translation>
    </message>
    <message>
        <source>The database “%1” could not be replaced.</source>
        <translation>Die Datenbank “%1” konnte nicht ersetzt werden.</translation>
    </message>
    <message>
        <source>documents (an invoice backup or an XML export); restore it with File ▸ Restore Invoices… or tabo-cli restore invoices</source>
        <translation>Dokumente (eine Rechnungssicherung oder ein XML-Export); stellen Sie sie mit Datei ▸ Rechnungen wiederherstellen… oder tabo-cli restore invoices wieder her</translation>
    </message>
    <message>
        <source>catalogue items (an item backup); restore it with File ▸ Restore Items… or tabo-cli restore items</source>
        <translation>Katalogartikel (eine Artikelsicherung); stellen Sie sie mit Datei ▸ Artikel wiederherstellen… oder tabo-cli restore items wieder her</translation>
    </message>
    <message>
        <source>designs; import them from the Design pane</source>
        <translation>Designs; importieren Sie sie im Bereich Design</translation>
    </message>
    <message>
        <source>It is a complete database backup; restore it with File ▸ Restore Database… or tabo-cli restore database.</source>
        <translation>Sie ist eine vollständige Datenbanksicherung; stellen Sie sie mit Datei ▸ Datenbank wiederherstellen… oder tabo-cli restore database wieder her.</translation>
    </message>
    <message>
        <source>It is a single exported document or a design; import it with File ▸ Import… or from the Design pane.</source>
        <translation>Sie ist ein einzelnes exportiertes Dokument oder ein Design; importieren Sie sie mit Datei ▸ Importieren… oder im Bereich Design.</translation>
    </message>
</context>
<context>
    <name>BinaryPlist</name>
    <message>
        <source>cannot write a value of type %1</source>
        <translation>ein Wert vom Typ %1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>invalid date</source>
        <translation>ungültiges Datum</translation>
    </message>
    <message>
        <source>truncated binary property list</source>
        <translation>abgeschnittene binäre Property-List</translation>
    </message>
    <message>
        <source>damaged binary property list trailer</source>
        <translation>beschädigter Trailer der binären Property-List</translation>
    </message>
    <message>
        <source>cyclic object reference</source>
        <translation>zyklischer Objektverweis</translation>
    </message>
    <message>
        <source>object offset out of range</source>
        <translation>Objektversatz außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>damaged length</source>
        <translation>beschädigte Länge</translation>
    </message>
    <message>
        <source>unknown object type 0x%1</source>
        <translation>unbekannter Objekttyp 0x%1</translation>
    </message>
    <message>
        <source>object extends past the data</source>
        <translation>Objekt reicht über die Daten hinaus</translation>
    </message>
    <message>
        <source>element count larger than the data</source>
        <translation>Anzahl der Elemente größer als die Daten</translation>
    </message>
    <message>
        <source>object reference out of range</source>
        <translation>Objektverweis außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>too many values</source>
        <translation>zu viele Werte</translation>
    </message>
    <message>
        <source>dictionary key is not a string</source>
        <translation>Wörterbuchschlüssel ist keine Zeichenkette</translation>
    </message>
</context>
<context>
    <name>CalcCommand</name>
    <message>
        <source>Recalculate the totals of a document.</source>
        <translation>Berechnet die Summen eines Dokuments neu.</translation>
    </message>
</context>
<context>
    <name>CatalogueCommand</name>
    <message>
        <source>The catalogue has no entry “%1”.</source>
        <translation>Der Katalog hat keinen Eintrag “%1”.</translation>
    </message>
    <message>
        <source>Give the entries to delete.</source>
        <translation>Geben Sie die zu löschenden Einträge an.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>JSON ausgeben.</translation>
    </message>
    <message>
        <source>Unknown catalogue “%1”.</source>
        <translation>Unbekannter Katalog “%1”.</translation>
    </message>
    <message>
        <source>List the article catalogue (title, price, article number, unit) or the remembered shipping lines (title, amount), by title; change an entry (title, subtitle, unit, sku, note, price, tax1..tax3) or delete entries. ENTRY is a title, an article number or a uniqueID.</source>
        <translation>Listet den Artikelkatalog (Titel, Preis, Artikelnummer, Einheit) oder die gemerkten Versandzeilen (Titel, Betrag) nach Titel; ändert einen Eintrag (title, subtitle, unit, sku, note, price, tax1..tax3) oder löscht Einträge. EINTRAG ist ein Titel, eine Artikelnummer oder eine uniqueID.</translation>
    </message>
    <message>
        <source>Give the entry and at least one KEY=VALUE.</source>
        <translation>Geben Sie den Eintrag und mindestens ein SCHLÜSSEL=WERT an.</translation>
    </message>
</context>
<context>
    <name>CliInteraction</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Don&apos;t Update Database and Quit Tabo 2</source>
        <translation>Datenbank nicht aktualisieren und Tabo 2 beenden</translation>
    </message>
</context>
<context>
    <name>Command</name>
    <message>
        <source>Show this help.</source>
        <translation>Diese Hilfe zeigen.</translation>
    </message>
    <message>
        <source>Missing argument.</source>
        <translation>Argument fehlt.</translation>
    </message>
    <message>
        <source>Too many arguments.</source>
        <translation>Zu viele Argumente.</translation>
    </message>
    <message>
        <source>Confirm the questions the command asks.</source>
        <translation>Die Fragen des Befehls bestätigen.</translation>
    </message>
    <message>
        <source>Filter tag.</source>
        <translation>Filter-Tag.</translation>
    </message>
    <message>
        <source>The list&apos;s search.</source>
        <translation>Die Suche der Liste.</translation>
    </message>
    <message>
        <source>“%1” is not a filter tag.</source>
        <translation>“%1” ist kein Filter-Tag.</translation>
    </message>
    <message>
        <source>Usage: </source>
        <translation>Verwendung: </translation>
    </message>
    <message>
        <source>Unknown key “%1”; known keys: %2.</source>
        <translation>Unbekannter Schlüssel “%1”; bekannte Schlüssel: %2.</translation>
    </message>
</context>
<context>
    <name>Console</name>
    <message>
        <source>“%1” names %2 %3; use one of their unique IDs: %4.</source>
        <translation>“%1” bezeichnet %2 %3; verwenden Sie eine ihrer eindeutigen IDs: %4.</translation>
    </message>
</context>
<context>
    <name>Contacts</name>
    <message>
        <source>The vCard data holds no usable contact.</source>
        <translation>Die vCard-Daten enthalten keinen verwendbaren Kontakt.</translation>
    </message>
    <message>
        <source>The data is not a vCard file.</source>
        <translation>Die Daten sind keine vCard-Datei.</translation>
    </message>
    <message>
        <source>The vCard file “%1” holds no usable contact.</source>
        <translation>Die vCard-Datei “%1” enthält keinen verwendbaren Kontakt.</translation>
    </message>
    <message>
        <source>The file “%1” is not a vCard file.</source>
        <translation>Die Datei “%1” ist keine vCard-Datei.</translation>
    </message>
    <message>
        <source>The file “%1” could not be read.</source>
        <translation>Die Datei “%1” konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file “%1” is too large for a vCard file.</source>
        <translation>Die Datei “%1” ist zu groß für eine vCard-Datei.</translation>
    </message>
    <message>
        <source>You need to provide an address pattern in the Preferences.</source>
        <translation>Sie müssen in den Einstellungen ein Adressmuster angeben.</translation>
    </message>
</context>
<context>
    <name>ConvertCommand</name>
    <message>
        <source>Convert a quote into an invoice (new number, title and texts); cannot be undone, so it needs --yes.</source>
        <translation>Wandelt ein Angebot in eine Rechnung um (neue Nummer, Titel und Texte); lässt sich nicht rückgängig machen, daher braucht es --yes.</translation>
    </message>
</context>
<context>
    <name>CsvStatement</name>
    <message>
        <source>“%1” is no column of a statement; the columns are date, amount, credit, debit, currency, payer, iban, text and reference.</source>
        <translation>„%1“ ist keine Spalte eines Kontoauszugs; die Spalten sind date, amount, credit, debit, currency, payer, iban, text und reference.</translation>
    </message>
    <message>
        <source>The file has no column “%1”.</source>
        <translation>Die Datei hat keine Spalte „%1“.</translation>
    </message>
    <message>
        <source>A statement needs at least its date and amount columns (or credit).</source>
        <translation>Ein Kontoauszug braucht mindestens die Spalten für Datum und Betrag (oder Haben).</translation>
    </message>
    <message>
        <source>This is not a bank statement Tabo reads (CAMT.053, CAMT.054, MT940 or CSV): it has no heading of three or more columns.</source>
        <translation>Dies ist kein Kontoauszug, den Tabo liest (CAMT.053, CAMT.054, MT940 oder CSV): Er hat keine Überschrift mit drei oder mehr Spalten.</translation>
    </message>
    <message>
        <source>Entry %1 has no amount that can be read: “%2”.</source>
        <translation>Eintrag %1 hat keinen lesbaren Betrag: „%2“.</translation>
    </message>
</context>
<context>
    <name>DeleteCommand</name>
    <message>
        <source>Delete a document (needs --yes). With --adjust-counter the invoice or quote counter is raised so that no number is used twice.</source>
        <translation>Löscht ein Dokument (braucht --yes). Mit --adjust-counter wird der Rechnungs- oder Angebotszähler erhöht, damit keine Nummer doppelt vergeben wird.</translation>
    </message>
    <message>
        <source>Answer “Adjust Counter” after the deletion.</source>
        <translation>Nach dem Löschen mit “Adjust Counter” antworten.</translation>
    </message>
    <message>
        <source>Adjust Counter</source>
        <translation>Zähler anpassen</translation>
    </message>
</context>
<context>
    <name>DeleteItemCommand</name>
    <message>
        <source>“%1” is not a line number.</source>
        <translation>“%1” ist keine Zeilennummer.</translation>
    </message>
    <message>
        <source>Delete line N (1 is the first, in the order the editor shows) of a document; needs --yes.</source>
        <translation>Löscht Zeile N (1 ist die erste, in der Reihenfolge des Editors) eines Dokuments; braucht --yes.</translation>
    </message>
    <message>
        <source>Document “%1” has no line %2; it has %3.</source>
        <translation>Dokument “%1” hat keine Zeile %2; es hat %3.</translation>
    </message>
</context>
<context>
    <name>DesignCommand</name>
    <message>
        <source>No design available. Please download or create a design.</source>
        <translation>Kein Design verfügbar. Bitte laden oder erstellen Sie ein Design.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>JSON ausgeben.</translation>
    </message>
    <message>
        <source>Design to preview.</source>
        <translation>Design für die Vorschau.</translation>
    </message>
    <message>
        <source>The page&apos;s HTML file.</source>
        <translation>Die HTML-Datei der Seite.</translation>
    </message>
    <message>
        <source>The row&apos;s HTML file.</source>
        <translation>Die HTML-Datei der Zeile.</translation>
    </message>
    <message>
        <source>The stylesheet file.</source>
        <translation>Die Stylesheet-Datei.</translation>
    </message>
    <message>
        <source>Name at least one of --invoice, --item and --css.</source>
        <translation>Nennen Sie mindestens eines von --invoice, --item und --css.</translation>
    </message>
    <message>
        <source> Run “tabo-cli prefs install-language N” to install the built-in designs, or “tabo-cli design add”.</source>
        <translation> “tabo-cli prefs install-language N” installiert die mitgelieferten Designs, “tabo-cli design add” fügt eines hinzu.</translation>
    </message>
    <message>
        <source>The design could not be added.</source>
        <translation>Das Design konnte nicht hinzugefügt werden.</translation>
    </message>
    <message>
        <source>The PDF file “%1” could not be created.</source>
        <translation>Die PDF-Datei “%1” konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>“%1” kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>“%1” is not UTF-8 text.</source>
        <translation>“%1” ist kein UTF-8-Text.</translation>
    </message>
    <message>
        <source>Manage the designs documents are rendered with; preview writes the sample document through a design (the default one unless --design) as a PDF. get writes a design&apos;s page, row and stylesheet to files and set reads them back, to edit a design in any editor. TITLE may also be a design&apos;s unique ID.</source>
        <translation>Verwaltet die Designs, mit denen Dokumente dargestellt werden; preview schreibt das Beispieldokument durch ein Design (das Standarddesign, außer mit --design) als PDF. get schreibt Seite, Zeile und Stylesheet eines Designs in Dateien und set liest sie zurück, um ein Design in einem beliebigen Editor zu bearbeiten. TITEL kann auch die eindeutige ID eines Designs sein.</translation>
    </message>
    <message>
        <source>--json belongs to “design list”.</source>
        <translation>--json gehört zu “design list”.</translation>
    </message>
    <message>
        <source>--design belongs to “design preview”.</source>
        <translation>--design gehört zu “design preview”.</translation>
    </message>
    <message>
        <source>--invoice, --item and --css belong to “design get” and “design set”.</source>
        <translation>--invoice, --item und --css gehören zu “design get” und “design set”.</translation>
    </message>
</context>
<context>
    <name>DesignFile</name>
    <message>
        <source>Not an archive: %1</source>
        <translation>Kein Archiv: %1</translation>
    </message>
    <message>
        <source>The archive holds no “%1”.</source>
        <translation>Das Archiv enthält kein “%1”.</translation>
    </message>
</context>
<context>
    <name>DesignLibrary</name>
    <message>
        <source>New Design</source>
        <translation>Neues Design</translation>
    </message>
    <message>
        <source>Delete Design</source>
        <translation>Design löschen</translation>
    </message>
    <message>
        <source>Deleting designs is permanent and cannot be undone. Do you really want to delete the selected design?</source>
        <translation>Das Löschen von Designs ist endgültig und kann nicht rückgängig gemacht werden. Möchten Sie das gewählte Design wirklich löschen?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Import Tabo Design</source>
        <translation>Tabo-Design importieren</translation>
    </message>
    <message>
        <source>The design “%1” could not be imported.</source>
        <translation>Das Design “%1” konnte nicht importiert werden.</translation>
    </message>
    <message>
        <source>There is no store to import into.</source>
        <translation>Es gibt keinen Speicher, in den importiert werden kann.</translation>
    </message>
    <message>
        <source>The file is not a Tabo design.</source>
        <translation>Die Datei ist kein Tabo-Design.</translation>
    </message>
    <message>
        <source>The file is not a Tabo design. %1</source>
        <translation>Die Datei ist kein Tabo-Design. %1</translation>
    </message>
    <message>
        <source>Export Tabo Design</source>
        <translation>Tabo-Design exportieren</translation>
    </message>
    <message>
        <source>The design could not be exported to “%1”.</source>
        <translation>Das Design konnte nicht nach “%1” exportiert werden.</translation>
    </message>
    <message>
        <source>No design is selected.</source>
        <translation>Kein Design ist gewählt.</translation>
    </message>
    <message>
        <source>The design could not be archived. %1</source>
        <translation>Das Design konnte nicht archiviert werden. %1</translation>
    </message>
</context>
<context>
    <name>DesignPreview</name>
    <message>
        <source>Ooops!</source>
        <translation>Hoppla!</translation>
    </message>
    <message>
        <source>Something went really wrong while creating the preview.</source>
        <translation>Beim Erstellen der Vorschau ist etwas gründlich schiefgegangen.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Rechnung</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Fehler!</translation>
    </message>
</context>
<context>
    <name>DiscountCommand</name>
    <message>
        <source>Edit the discount (keys: </source>
        <translation>Rabatt bearbeiten (Tasten: </translation>
    </message>
    <message>
        <source>“%1” is not a valid kind; 0 is a fixed amount, 1 a percentage.</source>
        <translation>“%1” ist keine gültige Art; 0 ist ein fester Betrag, 1 ein Prozentsatz.</translation>
    </message>
    <message>
        <source>); kind 0 takes the amount, any other the percent (19 means 19 %); keys not given keep their values.</source>
        <translation>); Art 0 nimmt den Betrag, jede andere den Prozentsatz (19 bedeutet 19 %); nicht angegebene Schlüssel behalten ihre Werte.</translation>
    </message>
</context>
<context>
    <name>DocumentCommands</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Sorry!</source>
        <translation>Leider nicht!</translation>
    </message>
    <message>
        <source>A quote is not cancelled by a credit note: nothing was charged. Change or delete the quote instead.</source>
        <translation>Ein Angebot wird nicht durch eine Gutschrift storniert: Es wurde nichts berechnet. Ändern oder löschen Sie stattdessen das Angebot.</translation>
    </message>
    <message>
        <source>Only an invoice marked as sent or paid is cancelled by a credit note. An invoice still marked as created can be changed or deleted instead.</source>
        <translation>Nur eine als gesendet oder bezahlt markierte Rechnung wird durch eine Gutschrift storniert. Eine noch als erstellt markierte Rechnung kann stattdessen geändert oder gelöscht werden.</translation>
    </message>
    <message>
        <source>Cancel Invoice</source>
        <translation>Rechnung stornieren</translation>
    </message>
    <message>
        <source>Create Credit Note</source>
        <translation>Gutschrift erstellen</translation>
    </message>
    <message>
        <source>Cancels invoice %1 of %2</source>
        <translation>Storniert Rechnung %1 vom %2</translation>
    </message>
    <message>
        <source>You can&apos;t convert an invoice into a quote.</source>
        <translation>Eine Rechnung kann nicht in ein Angebot umgewandelt werden.</translation>
    </message>
    <message>
        <source>Convert Into Invoice</source>
        <translation>In Rechnung umwandeln</translation>
    </message>
    <message>
        <source>Do you really want to convert the selected quote into an invoice? This will also change the title, the boilerplate text, the counter for your invoice numbering, and you can&apos;t undo this action.</source>
        <translation>Möchten Sie das gewählte Angebot wirklich in eine Rechnung umwandeln? Dabei ändern sich auch der Titel, die Textbausteine und der Zähler Ihrer Rechnungsnummern, und Sie können dies nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Umwandeln</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Fehler!</translation>
    </message>
    <message>
        <source>The selected invoice is marked as already sent. If you really need to delete it, please set its status back to &apos;Created&apos; first.</source>
        <translation>Die gewählte Rechnung ist bereits als gesendet markiert. Wenn Sie sie wirklich löschen müssen, setzen Sie ihren Status bitte zuerst auf “Erstellt” zurück.</translation>
    </message>
    <message>
        <source>Delete Invoice</source>
        <translation>Rechnung löschen</translation>
    </message>
    <message>
        <source>Deleting invoices is permanent and cannot be undone. Do you really want to delete the selected invoice?</source>
        <translation>Das Löschen von Rechnungen ist endgültig und kann nicht rückgängig gemacht werden. Möchten Sie die gewählte Rechnung wirklich löschen?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete Quote</source>
        <translation>Angebot löschen</translation>
    </message>
    <message>
        <source>Deleting quotes is permanent and cannot be undone. Do you really want to delete the selected quote?</source>
        <translation>Das Löschen von Angeboten ist endgültig und kann nicht rückgängig gemacht werden. Möchten Sie das gewählte Angebot wirklich löschen?</translation>
    </message>
    <message>
        <source>

Adjust Counter: the next %1 will be numbered %2.
Cancel: the next %1 will be numbered %3.</source>
        <translation>

Zähler anpassen: Das nächste Dokument (%1) erhält die Nummer %2.
Abbrechen: Das nächste Dokument (%1) erhält die Nummer %3.</translation>
    </message>
    <message>
        <source>Adjust Counter</source>
        <translation>Zähler anpassen</translation>
    </message>
    <message>
        <source>Do you want Tabo to automatically adjust your invoice counter so that you won&apos;t use the same invoice number twice?</source>
        <translation>Soll Tabo Ihren Rechnungszähler automatisch anpassen, damit Sie keine Rechnungsnummer doppelt verwenden?</translation>
    </message>
    <message>
        <source>Do you want Tabo to automatically adjust your quote counter so that you won&apos;t use the same quote number twice?</source>
        <translation>Soll Tabo Ihren Angebotszähler automatisch anpassen, damit Sie keine Angebotsnummer doppelt verwenden?</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Rechnung</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Angebot</translation>
    </message>
    <message>
        <source>A credit note with the same lines, negated, cancels this invoice; the invoice itself stays as it is.

</source>
        <translation>Eine Gutschrift mit denselben Zeilen, negiert, storniert diese Rechnung; die Rechnung selbst bleibt, wie sie ist.

</translation>
    </message>
</context>
<context>
    <name>DumpCommand</name>
    <message>
        <source>Write documents, catalogue, designs, addresses, shipping lines and templates to an invoices dump (a keyed archive; nothing reads it back).</source>
        <translation>Schreibt Dokumente, Katalog, Designs, Adressen, Versandzeilen und Vorlagen in einen Rechnungs-Dump (ein Keyed Archive; nichts liest ihn zurück).</translation>
    </message>
</context>
<context>
    <name>DuplicateCommand</name>
    <message>
        <source>Cancel a sent or paid invoice by a credit note (needs --yes): its lines negated, numbered as invoices are, naming the invoice. Prints the credit note&apos;s unique ID.</source>
        <translation>Storniert eine gesendete oder bezahlte Rechnung durch eine Gutschrift (braucht --yes): ihre Zeilen negiert, nummeriert wie Rechnungen, mit Verweis auf die Rechnung. Gibt die eindeutige ID der Gutschrift aus.</translation>
    </message>
    <message>
        <source>Copy a document with its lines under a new number; prints the copy&apos;s unique ID. --to-the-cent calculates the copy to the cent per VAT rate, as e-invoices need.</source>
        <translation>Kopiert ein Dokument mit seinen Zeilen unter neuer Nummer; gibt die eindeutige ID der Kopie aus. --to-the-cent berechnet die Kopie centgenau je Umsatzsteuersatz, wie E-Rechnungen es brauchen.</translation>
    </message>
</context>
<context>
    <name>EInvoice</name>
    <message>
        <source>tax %1</source>
        <translation>Steuer %1</translation>
    </message>
    <message>
        <source>A quote is not an invoice: e-invoices are made of invoices.</source>
        <translation>Ein Angebot ist keine Rechnung: E-Rechnungen entstehen aus Rechnungen.</translation>
    </message>
    <message>
        <source>The invoice needs a due date or payment conditions (Dates and status, Texts)</source>
        <translation>Die Rechnung braucht ein Fälligkeitsdatum oder Zahlungsbedingungen (Daten und Status, Texte)</translation>
    </message>
    <message>
        <source> (Preferences ▸ Company)</source>
        <translation> (Einstellungen ▸ Firma)</translation>
    </message>
    <message>
        <source> (Client ▸ Address ▸ E-invoice)</source>
        <translation> (Kunde ▸ Adresse ▸ E-Rechnung)</translation>
    </message>
    <message>
        <source>The company&apos;s name is missing</source>
        <translation>Der Name der Firma fehlt</translation>
    </message>
    <message>
        <source>The company&apos;s street is missing</source>
        <translation>Die Straße der Firma fehlt</translation>
    </message>
    <message>
        <source>The company&apos;s postcode is missing</source>
        <translation>Die PLZ der Firma fehlt</translation>
    </message>
    <message>
        <source>The company&apos;s city is missing</source>
        <translation>Der Ort der Firma fehlt</translation>
    </message>
    <message>
        <source>The company&apos;s country code (DE, FR …) is missing</source>
        <translation>Der Ländercode der Firma (DE, FR …) fehlt</translation>
    </message>
    <message>
        <source>The company&apos;s VAT ID or tax number is missing</source>
        <translation>Die USt-IdNr. oder Steuernummer der Firma fehlt</translation>
    </message>
    <message>
        <source>The company&apos;s phone number is missing</source>
        <translation>Die Telefonnummer der Firma fehlt</translation>
    </message>
    <message>
        <source>The company&apos;s phone number needs at least three digits</source>
        <translation>Die Telefonnummer der Firma braucht mindestens drei Ziffern</translation>
    </message>
    <message>
        <source>The company&apos;s e-mail address is missing</source>
        <translation>Die E-Mail-Adresse der Firma fehlt</translation>
    </message>
    <message>
        <source>The company&apos;s IBAN is missing</source>
        <translation>Die IBAN der Firma fehlt</translation>
    </message>
    <message>
        <source>The currency code (EUR, CHF …) is missing</source>
        <translation>Der Währungscode (EUR, CHF …) fehlt</translation>
    </message>
    <message>
        <source>The client&apos;s name is missing</source>
        <translation>Der Name des Kunden fehlt</translation>
    </message>
    <message>
        <source>The client&apos;s postcode is missing</source>
        <translation>Die PLZ des Kunden fehlt</translation>
    </message>
    <message>
        <source>The client&apos;s city is missing</source>
        <translation>Der Ort des Kunden fehlt</translation>
    </message>
    <message>
        <source>The client&apos;s country code (DE, FR …) is missing</source>
        <translation>Der Ländercode des Kunden (DE, FR …) fehlt</translation>
    </message>
    <message>
        <source>The client&apos;s e-invoice address or e-mail address is missing</source>
        <translation>Die E-Rechnungs-Adresse oder E-Mail-Adresse des Kunden fehlt</translation>
    </message>
    <message>
        <source>The invoice has no number (Invoice ▸ Number)</source>
        <translation>Die Rechnung hat keine Nummer (Rechnung ▸ Nummer)</translation>
    </message>
    <message>
        <source>The invoice has no date (Dates and status)</source>
        <translation>Die Rechnung hat kein Datum (Daten und Status)</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>Line %1 “%2”</source>
        <translation>Zeile %1 “%2”</translation>
    </message>
    <message>
        <source>The invoice has no lines (Items)</source>
        <translation>Die Rechnung hat keine Zeilen (Artikel)</translation>
    </message>
    <message>
        <source>The shipping carries the compound tax %1, which an e-invoice cannot state.</source>
        <translation>Der Versand trägt die zusammengesetzte Steuer %1, die eine E-Rechnung nicht ausweisen kann.</translation>
    </message>
    <message>
        <source>The lines, each to the cent, add up to %1, but the invoice prints a net amount of %2: the classic calculation does not round each line.</source>
        <translation>Die Zeilen, jede auf den Cent, ergeben %1, aber die Rechnung druckt einen Nettobetrag von %2: Die klassische Berechnung rundet nicht jede Zeile.</translation>
    </message>
    <message>
        <source>The invoice prints a total of %1, but its lines, shipping and taxes come to %2.</source>
        <translation>Die Rechnung druckt eine Summe von %1, aber ihre Zeilen, Versand und Steuern ergeben %2.</translation>
    </message>
    <message>
        <source>The tax at %1 %: the invoice prints %2, but %3 × %1 % is %4. A rate changed after the lines were added causes this: recalculate the invoice.</source>
        <translation>Die Steuer zu %1 %: Die Rechnung druckt %2, aber %3 × %1 % sind %4. Das kommt von einem Satz, der nach dem Hinzufügen der Zeilen geändert wurde: Berechnen Sie die Rechnung neu.</translation>
    </message>
    <message>
        <source>Supplies not subject to VAT cannot share an e-invoice with taxed ones.</source>
        <translation>Nicht umsatzsteuerpflichtige Leistungen können keine E-Rechnung mit besteuerten teilen.</translation>
    </message>
    <message>
        <source>“%1” is not a VAT category (Preferences ▸ Taxes).</source>
        <translation>“%1” ist keine Umsatzsteuerkategorie (Einstellungen ▸ Steuern).</translation>
    </message>
    <message>
        <source>A tax</source>
        <translation>Eine Steuer</translation>
    </message>
    <message>
        <source>The client&apos;s VAT ID is missing, which reverse charge and intra-community supplies need (Client ▸ Address)</source>
        <translation>Die USt-IdNr. des Kunden fehlt, die Umkehr der Steuerschuld und innergemeinschaftliche Lieferungen brauchen (Kunde ▸ Adresse)</translation>
    </message>
    <message>
        <source>%1 carries %2 and %3; an e-invoice line carries one VAT rate.</source>
        <translation>%1 trägt %2 und %3; eine Zeile einer E-Rechnung trägt einen Umsatzsteuersatz.</translation>
    </message>
    <message>
        <source>%1 carries the compound tax %2, which an e-invoice cannot state.</source>
        <translation>%1 trägt die zusammengesetzte Steuer %2, die eine E-Rechnung nicht ausweisen kann.</translation>
    </message>
    <message>
        <source>The shipping carries %1 and %2; an e-invoice charge carries one VAT rate.</source>
        <translation>Der Versand trägt %1 und %2; ein Zuschlag einer E-Rechnung trägt einen Umsatzsteuersatz.</translation>
    </message>
    <message>
        <source>The discount: the classic calculation charges the tax at %1 % on the amount before the discount (%2), an e-invoice on the amount after it (%3 × %1 % = %4).</source>
        <translation>Der Rabatt: Die klassische Berechnung erhebt die Steuer zu %1 % auf den Betrag vor dem Rabatt (%2), eine E-Rechnung auf den Betrag danach (%3 × %1 % = %4).</translation>
    </message>
    <message>
        <source>%1 is marked as “%2” in the preferences but charges %3.</source>
        <translation>%1 ist in den Einstellungen als “%2” markiert, berechnet aber %3.</translation>
    </message>
    <message>
        <source>%1 is “%2”, which needs a reason why VAT is not charged (Preferences ▸ Taxes)</source>
        <translation>%1 ist “%2” und braucht einen Grund, warum keine Umsatzsteuer berechnet wird (Einstellungen ▸ Steuern)</translation>
    </message>
    <message>
        <source>The invoice prints a total of %1; stated the standard&apos;s way it comes to %2.</source>
        <translation>Die Rechnung druckt eine Summe von %1; nach dem Standard gerechnet ergibt sich %2.</translation>
    </message>
</context>
<context>
    <name>EInvoiceCommand</name>
    <message>
        <source>Write the page as PDF.</source>
        <translation>Die Seite als PDF schreiben.</translation>
    </message>
    <message>
        <source>Write the page as HTML.</source>
        <translation>Die Seite als HTML schreiben.</translation>
    </message>
    <message>
        <source>Say where: --pdf OUT or --html OUT.</source>
        <translation>Sagen Sie, wohin: --pdf AUSGABE oder --html AUSGABE.</translation>
    </message>
    <message>
        <source>credit note</source>
        <translation>Gutschrift</translation>
    </message>
    <message>
        <source>, from a PDF</source>
        <translation>, aus einem PDF</translation>
    </message>
    <message>
        <source>Its totals do not add up.</source>
        <translation>Ihre Summen gehen nicht auf.</translation>
    </message>
    <message>
        <source>its totals add up: %1 %2 due
</source>
        <translation>die Summen gehen auf: %1 %2 fällig
</translation>
    </message>
    <message>
        <source>The page could not be written to “%1”.</source>
        <translation>Die Seite konnte nicht nach “%1” geschrieben werden.</translation>
    </message>
    <message>
        <source>XRechnung in CII.</source>
        <translation>XRechnung in CII.</translation>
    </message>
    <message>
        <source>XRechnung in UBL.</source>
        <translation>XRechnung in UBL.</translation>
    </message>
    <message>
        <source>Factur-X / ZUGFeRD PDF.</source>
        <translation>Factur-X-/ZUGFeRD-PDF.</translation>
    </message>
    <message>
        <source>Design of the PDF.</source>
        <translation>Design des PDFs.</translation>
    </message>
    <message>
        <source>Missing export, missing, view or check.</source>
        <translation>export, missing, view oder check fehlt.</translation>
    </message>
    <message>
        <source>Unknown “%1”: export, missing, view or check.</source>
        <translation>Unbekannt “%1”: export, missing, view oder check.</translation>
    </message>
    <message>
        <source>The e-invoice cannot be written yet (%1 above).</source>
        <translation>Die E-Rechnung kann noch nicht geschrieben werden (%1 oben).</translation>
    </message>
    <message>
        <source>The e-invoice cannot be written yet: </source>
        <translation>Die E-Rechnung kann noch nicht geschrieben werden: </translation>
    </message>
    <message>
        <source>Write an invoice as XRechnung (CII or UBL) or as a Factur-X / ZUGFeRD PDF, or list what it still needs for one (each in words, with where to fill it); nothing is written while something is missing. view and check read a received e-invoice (XML, or a PDF carrying one): a readable page of it, or whether it is well-formed and its totals add up. A received invoice is never stored.</source>
        <translation>Schreibt eine Rechnung als XRechnung (CII oder UBL) oder als Factur-X-/ZUGFeRD-PDF oder listet, was dafür noch fehlt (jeweils in Worten, mit dem Ort zum Ausfüllen); solange etwas fehlt, wird nichts geschrieben. view und check lesen eine empfangene E-Rechnung (XML oder ein PDF, das eine trägt): eine lesbare Seite davon, oder ob sie wohlgeformt ist und ihre Summen aufgehen. Eine empfangene Rechnung wird nie gespeichert.</translation>
    </message>
    <message>
        <source>Say which and where: --xrechnung-cii FILE, --xrechnung-ubl FILE or --facturx FILE.pdf.</source>
        <translation>Sagen Sie, was und wohin: --xrechnung-cii DATEI, --xrechnung-ubl DATEI oder --facturx DATEI.pdf.</translation>
    </message>
    <message>
        <source> tabo-cli duplicate %1 --to-the-cent makes a copy calculated to the cent; tabo-cli prefs set centExactTotals true does so for new invoices.</source>
        <translation> tabo-cli duplicate %1 --to-the-cent erstellt eine centgenau berechnete Kopie; tabo-cli prefs set centExactTotals true tut das für neue Rechnungen.</translation>
    </message>
</context>
<context>
    <name>EInvoiceCommands</name>
    <message>
        <source>Make a copy calculated to the cent, whose e-invoice states exactly what it prints, or switch the setting for new invoices (Preferences ▸ Taxes ▸ Calculate new documents to the cent).</source>
        <translation>Erstellen Sie eine centgenau berechnete Kopie, deren E-Rechnung genau das angibt, was sie druckt, oder ändern Sie die Einstellung für neue Rechnungen (Einstellungen ▸ Steuern ▸ Neue Dokumente centgenau berechnen).</translation>
    </message>
    <message>
        <source>The e-invoice cannot be written yet</source>
        <translation>Die E-Rechnung kann noch nicht geschrieben werden</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Make a copy calculated to the cent</source>
        <translation>Eine centgenau berechnete Kopie erstellen</translation>
    </message>
    <message>
        <source>Open E-Invoice</source>
        <translation>E-Rechnung öffnen</translation>
    </message>
    <message>
        <source>The e-invoice cannot be shown</source>
        <translation>Die E-Rechnung kann nicht gezeigt werden</translation>
    </message>
    <message>
        <source>Its page could not be made.</source>
        <translation>Ihre Seite konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>PDF with e-invoice (Factur-X / ZUGFeRD)</source>
        <translation>PDF mit E-Rechnung (Factur-X / ZUGFeRD)</translation>
    </message>
    <message>
        <source>E-invoice (XRechnung)</source>
        <translation>E-Rechnung (XRechnung)</translation>
    </message>
    <message>
        <source>The printed invoice “%1” cannot be read.</source>
        <translation>Die gedruckte Rechnung “%1” kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>EmailCommand</name>
    <message>
        <source>What to attach.</source>
        <translation>Was angehängt wird.</translation>
    </message>
    <message>
        <source>Open a new message in the mail program with the document as a PDF attachment; an invoice is then marked as sent when markInvoiceAsSent is on. --form attaches an invoice as PDF with its e-invoice (Factur-X / ZUGFeRD) or as e-invoice alone (XRechnung) instead; without it, the einvoiceForm preference decides.</source>
        <translation>Öffnet eine neue Nachricht im E-Mail-Programm mit dem Dokument als PDF-Anhang; eine Rechnung wird dann als gesendet markiert, wenn markInvoiceAsSent an ist. --form hängt eine Rechnung stattdessen als PDF mit E-Rechnung (Factur-X / ZUGFeRD) oder als reine E-Rechnung (XRechnung) an; ohne die Option entscheidet die Einstellung einvoiceForm.</translation>
    </message>
    <message>
        <source>--form takes pdf, facturx or xrechnung.</source>
        <translation>--form nimmt pdf, facturx oder xrechnung.</translation>
    </message>
</context>
<context>
    <name>ExportCommand</name>
    <message>
        <source>Write a document as a Tabo document (the form import reads) or as an XML property list.</source>
        <translation>Schreibt ein Dokument als Tabo-Dokument (die Form, die der Import liest) oder als XML-Property-List.</translation>
    </message>
    <message>
        <source>Tabo document to write.</source>
        <translation>Zu schreibendes Tabo-Dokument.</translation>
    </message>
    <message>
        <source>XML file to write.</source>
        <translation>Zu schreibende XML-Datei.</translation>
    </message>
    <message>
        <source>Give one of --tabo and --xml.</source>
        <translation>Geben Sie eines von --tabo und --xml an.</translation>
    </message>
</context>
<context>
    <name>ExportXmlCommand</name>
    <message>
        <source>Write every document, or those the list shows under a filter tag (as in list), to an XML property list.</source>
        <translation>Schreibt jedes Dokument oder die, die die Liste unter einem Filter-Tag zeigt (wie bei list), in eine XML-Property-List.</translation>
    </message>
</context>
<context>
    <name>FacturX</name>
    <message>
        <source>The printed invoice could not be made a Factur-X PDF: %1</source>
        <translation>Aus der gedruckten Rechnung konnte kein Factur-X-PDF gemacht werden: %1</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Export Tabo Database As XML</source>
        <translation>Tabo-Datenbank als XML exportieren</translation>
    </message>
    <message>
        <source>The archive could not be built: %1</source>
        <translation>Das Archiv konnte nicht erstellt werden: %1</translation>
    </message>
    <message>
        <source>There is no database.</source>
        <translation>Es gibt keine Datenbank.</translation>
    </message>
    <message>
        <source>Export As Tabo Document</source>
        <translation>Als Tabo-Dokument exportieren</translation>
    </message>
    <message>
        <source>Export As XML Document</source>
        <translation>Als XML-Dokument exportieren</translation>
    </message>
    <message>
        <source>Unknown export format %1.</source>
        <translation>Unbekanntes Exportformat %1.</translation>
    </message>
    <message>
        <source>Tabo Database</source>
        <translation>Tabo-Datenbank</translation>
    </message>
    <message>
        <source>Export As Invoices Dump</source>
        <translation>Als Rechnungs-Dump exportieren</translation>
    </message>
    <message>
        <source>Invoices Dump</source>
        <translation>Rechnungs-Dump</translation>
    </message>
    <message>
        <source>Warning!</source>
        <translation>Warnung!</translation>
    </message>
    <message>
        <source>The integrity of your data is your responsibility, and yours alone. Tabo is just a stupid App and by design it can&apos;t know or care about duplicate invoices, messed up numbers, or if you&apos;re having a bad hair day. So please, do yourself a favor and check what you are doing here. Do you still want to import the invoice?</source>
        <translation>Für die Richtigkeit Ihrer Daten sind Sie verantwortlich, und nur Sie. Tabo ist nur eine dumme App und kann von Haus aus nicht wissen, ob es doppelte Rechnungen, durcheinandergeratene Nummern oder einen schlechten Tag gibt. Tun Sie sich also bitte den Gefallen und prüfen Sie, was Sie hier tun. Möchten Sie die Rechnung trotzdem importieren?</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Import Tabo Document</source>
        <translation>Tabo-Dokument importieren</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Fehler!</translation>
    </message>
    <message>
        <source>The file “%1” is not a Tabo document.</source>
        <translation>Die Datei “%1” ist kein Tabo-Dokument.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The file “%1” could not be read: %2</source>
        <translation>Die Datei “%1” konnte nicht gelesen werden: %2</translation>
    </message>
</context>
<context>
    <name>GuiInteraction</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ImportCommand</name>
    <message>
        <source>No file “%1”.</source>
        <translation>Keine Datei “%1”.</translation>
    </message>
    <message>
        <source>Nothing was imported from “%1”.</source>
        <translation>Aus “%1” wurde nichts importiert.</translation>
    </message>
    <message>
        <source>Add the document of a Tabo document file; the application warns first, so it needs --yes. Prints the new document&apos;s unique ID.</source>
        <translation>Fügt das Dokument einer Tabo-Dokumentdatei hinzu; das Programm warnt vorher, daher braucht es --yes. Gibt die eindeutige ID des neuen Dokuments aus.</translation>
    </message>
</context>
<context>
    <name>ItemCommands</name>
    <message>
        <source>The selected invoice is marked as already sent. If you really need to make changes, please set its status back to &apos;Created&apos; first. Then you will also be able to resend the modified invoice.</source>
        <translation>Die gewählte Rechnung ist bereits als gesendet markiert. Wenn Sie wirklich etwas ändern müssen, setzen Sie ihren Status bitte zuerst auf “Erstellt” zurück. Dann können Sie die geänderte Rechnung auch erneut senden.</translation>
    </message>
    <message>
        <source>The %1 “%2” is not a number.</source>
        <translation>%1 “%2” ist keine Zahl.</translation>
    </message>
    <message>
        <source>rate of the first tax</source>
        <translation>Satz der ersten Steuer</translation>
    </message>
    <message>
        <source>rate of the second tax</source>
        <translation>Satz der zweiten Steuer</translation>
    </message>
    <message>
        <source>rate of the third tax</source>
        <translation>Satz der dritten Steuer</translation>
    </message>
    <message>
        <source>net amount</source>
        <translation>Nettobetrag</translation>
    </message>
    <message>
        <source>The catalogue entry is no longer there.</source>
        <translation>Der Katalogeintrag ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>A catalogue entry has no field “%1” to change.</source>
        <translation>Ein Katalogeintrag hat kein Feld “%1”, das sich ändern ließe.</translation>
    </message>
    <message>
        <source>The price is not a number.</source>
        <translation>Der Preis ist keine Zahl.</translation>
    </message>
    <message>
        <source>Delete from Catalogue</source>
        <translation>Aus dem Katalog löschen</translation>
    </message>
    <message>
        <source>Delete %1 from the catalogue? Lines already written with %2 stay as they are.</source>
        <translation>%1 aus dem Katalog löschen? Zeilen, die schon mit %2 geschrieben wurden, bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>There is no document to add the line to.</source>
        <translation>Es gibt kein Dokument, dem die Zeile hinzugefügt werden kann.</translation>
    </message>
    <message>
        <source>Add Line</source>
        <translation>Zeile hinzufügen</translation>
    </message>
    <message>
        <source>Delete Line</source>
        <translation>Zeile löschen</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Fehler!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Delete Item</source>
        <translation>Artikel löschen</translation>
    </message>
    <message>
        <source>Deleting items is permanent and cannot be undone. Do you really want to delete the selected item?</source>
        <translation>Das Löschen von Artikeln ist endgültig und kann nicht rückgängig gemacht werden. Möchten Sie den gewählten Artikel wirklich löschen?</translation>
    </message>
    <message>
        <source>There is no line to change.</source>
        <translation>Es gibt keine Zeile zum Ändern.</translation>
    </message>
    <message>
        <source>A line has no field “%1”.</source>
        <translation>Eine Zeile hat kein Feld “%1”.</translation>
    </message>
    <message>
        <source>Edit Line</source>
        <translation>Zeile bearbeiten</translation>
    </message>
    <message>
        <source>The value “%1” does not fit the field “%2”.</source>
        <translation>Der Wert “%1” passt nicht in das Feld “%2”.</translation>
    </message>
    <message>
        <source>There is no document to add the shipping to.</source>
        <translation>Es gibt kein Dokument, dem der Versand hinzugefügt werden kann.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Versand</translation>
    </message>
    <message>
        <source>shipping amount</source>
        <translation>Versandbetrag</translation>
    </message>
    <message>
        <source>There is no document to add the discount to.</source>
        <translation>Es gibt kein Dokument, dem der Rabatt hinzugefügt werden kann.</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Rabatt</translation>
    </message>
    <message>
        <source>discount amount</source>
        <translation>Rabattbetrag</translation>
    </message>
    <message>
        <source>discount percentage</source>
        <translation>Rabattprozentsatz</translation>
    </message>
    <message>
        <source>The %1 “%2” is too large; it can be at most about 3.4e38.</source>
        <translation>%1 “%2” ist zu groß; höchstens etwa 3,4e38 sind möglich.</translation>
    </message>
    <message>
        <source>The %1 is empty; please enter a number.</source>
        <translation>%1 ist leer; bitte geben Sie eine Zahl ein.</translation>
    </message>
</context>
<context>
    <name>KeyedArchive</name>
    <message>
        <source>nested deeper than %1 levels</source>
        <translation>tiefer verschachtelt als %1 Ebenen</translation>
    </message>
    <message>
        <source>cannot archive a value of type %1</source>
        <translation>ein Wert vom Typ %1 kann nicht archiviert werden</translation>
    </message>
    <message>
        <source>invalid date</source>
        <translation>ungültiges Datum</translation>
    </message>
    <message>
        <source>object without a class</source>
        <translation>Objekt ohne Klasse</translation>
    </message>
    <message>
        <source>damaged class entry</source>
        <translation>beschädigter Klasseneintrag</translation>
    </message>
    <message>
        <source>expected an object reference</source>
        <translation>Objektverweis erwartet</translation>
    </message>
    <message>
        <source>reference to a missing object</source>
        <translation>Verweis auf ein fehlendes Objekt</translation>
    </message>
    <message>
        <source>cyclic object reference</source>
        <translation>zyklischer Objektverweis</translation>
    </message>
    <message>
        <source>malformed object</source>
        <translation>fehlerhaftes Objekt</translation>
    </message>
    <message>
        <source>dictionary with unequal keys and values</source>
        <translation>Wörterbuch mit ungleich vielen Schlüsseln und Werten</translation>
    </message>
    <message>
        <source>too many values</source>
        <translation>zu viele Werte</translation>
    </message>
    <message>
        <source>damaged string</source>
        <translation>beschädigte Zeichenkette</translation>
    </message>
    <message>
        <source>damaged date</source>
        <translation>beschädigtes Datum</translation>
    </message>
    <message>
        <source>damaged data</source>
        <translation>beschädigte Daten</translation>
    </message>
    <message>
        <source>not a keyed archive</source>
        <translation>kein Keyed Archive</translation>
    </message>
    <message>
        <source>the archive&apos;s root is empty or of an unknown class</source>
        <translation>die Wurzel des Archivs ist leer oder von unbekannter Klasse</translation>
    </message>
</context>
<context>
    <name>ListCommand</name>
    <message>
        <source>List the documents shown by a filter (0 all, 1 sent, 2 overdue or partly paid, 3 paid, 4 quotes, 5-8 the last 12 hours, 3.5, 15.5, 182.5 days) and the summary.</source>
        <translation>Listet die Dokumente eines Filters (0 alle, 1 gesendet, 2 überfällig oder teilweise bezahlt, 3 bezahlt, 4 Angebote, 5-8 die letzten 12 Stunden, 3,5, 15,5, 182,5 Tage) und die Zusammenfassung.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>JSON ausgeben.</translation>
    </message>
</context>
<context>
    <name>MailHandoff</name>
    <message>
        <source>No e-mail program is set up on this computer.</source>
        <translation>Auf diesem Computer ist kein E-Mail-Programm eingerichtet.</translation>
    </message>
    <message>
        <source>The PDF to attach could not be found.</source>
        <translation>Das anzuhängende PDF wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>The e-mail program did not accept the new message.</source>
        <translation>Das E-Mail-Programm hat die neue Nachricht nicht angenommen.</translation>
    </message>
    <message>
        <source>The e-mail program could not be asked to write the message.</source>
        <translation>Das E-Mail-Programm konnte nicht gebeten werden, die Nachricht zu schreiben.</translation>
    </message>
</context>
<context>
    <name>Matching</name>
    <message>
        <source>%1 more than is due.</source>
        <translation>%1 mehr als fällig.</translation>
    </message>
    <message>
        <source>Partly paid: %1 of %2.</source>
        <translation>Teilweise bezahlt: %1 von %2.</translation>
    </message>
    <message>
        <source>Taken in from an earlier statement.</source>
        <translation>Aus einem früheren Auszug übernommen.</translation>
    </message>
    <message>
        <source>The text names invoice %1 and the amount is what it owes.</source>
        <translation>Der Text nennt Rechnung %1, und der Betrag ist, was sie schuldet.</translation>
    </message>
    <message>
        <source>The text names invoice %1.</source>
        <translation>Der Text nennt Rechnung %1.</translation>
    </message>
    <message>
        <source>The text names %1 open invoices.</source>
        <translation>Der Text nennt %1 offene Rechnungen.</translation>
    </message>
    <message>
        <source>The only open invoice of exactly this amount.</source>
        <translation>Die einzige offene Rechnung über genau diesen Betrag.</translation>
    </message>
    <message>
        <source>This amount, from this client.</source>
        <translation>Dieser Betrag, von diesem Kunden.</translation>
    </message>
    <message>
        <source>%1 open invoices owe exactly this amount.</source>
        <translation>%1 offene Rechnungen schulden genau diesen Betrag.</translation>
    </message>
    <message>
        <source>The only open invoice of this client.</source>
        <translation>Die einzige offene Rechnung dieses Kunden.</translation>
    </message>
    <message>
        <source>This client has %1 open invoices, none of this amount.</source>
        <translation>Dieser Kunde hat %1 offene Rechnungen, keine über diesen Betrag.</translation>
    </message>
    <message>
        <source>No open invoice fits.</source>
        <translation>Keine offene Rechnung passt.</translation>
    </message>
</context>
<context>
    <name>NewCommand</name>
    <message>
        <source>Create a document and print its unique ID.</source>
        <translation>Erstellt ein Dokument und gibt seine eindeutige ID aus.</translation>
    </message>
    <message>
        <source>Unknown document kind “%1”.</source>
        <translation>Unbekannte Dokumentart “%1”.</translation>
    </message>
</context>
<context>
    <name>NotificationCommands</name>
    <message>
        <source>Notification Already Created</source>
        <translation>Benachrichtigung bereits erstellt</translation>
    </message>
    <message>
        <source>You&apos;ve already created a notification for this invoice. Do you really want to create another one?</source>
        <translation>Sie haben für diese Rechnung bereits eine Benachrichtigung erstellt. Möchten Sie wirklich noch eine erstellen?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>There is no invoice to remind of.</source>
        <translation>Es gibt keine Rechnung, an die erinnert werden kann.</translation>
    </message>
    <message>
        <source>There is no notification %1.</source>
        <translation>Es gibt keine Benachrichtigung %1.</translation>
    </message>
    <message>
        <source>The notifications stay scheduled.</source>
        <translation>Die Benachrichtigungen bleiben geplant.</translation>
    </message>
    <message>
        <source>The notification service did not show %1 of the reminders.</source>
        <translation>Der Benachrichtigungsdienst hat %1 der Erinnerungen nicht gezeigt.</translation>
    </message>
    <message>
        <source>They stay scheduled.</source>
        <translation>Sie bleiben geplant.</translation>
    </message>
    <message>
        <source>Reminders While Tabo Is Closed</source>
        <translation>Erinnerungen, während Tabo geschlossen ist</translation>
    </message>
    <message>
        <source>Tabo shows this reminder when its moment comes while Tabo is open. Shall a small timer of your desktop session look for due reminders every hour, so that they also arrive while Tabo is closed? You can remove it at any time in Preferences ▸ Data.</source>
        <translation>Tabo zeigt diese Erinnerung zu ihrem Zeitpunkt, wenn Tabo geöffnet ist. Soll ein kleiner Timer Ihrer Desktop-Sitzung stündlich nach fälligen Erinnerungen sehen, damit sie auch kommen, während Tabo geschlossen ist? Sie können ihn jederzeit unter Einstellungen ▸ Daten entfernen.</translation>
    </message>
    <message>
        <source>Install Timer</source>
        <translation>Timer installieren</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
</context>
<context>
    <name>NotificationSchedule</name>
    <message>
        <source>The notification could not be saved.</source>
        <translation>Die Benachrichtigung konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>It has no date.</source>
        <translation>Sie hat kein Datum.</translation>
    </message>
</context>
<context>
    <name>Notifier</name>
    <message>
        <source>Notifications cannot be shown: there is no desktop session bus (D-Bus) here.</source>
        <translation>Benachrichtigungen können nicht gezeigt werden: Hier gibt es keinen Sitzungsbus (D-Bus).</translation>
    </message>
    <message>
        <source>Notifications cannot be shown: no notification service runs on this desktop.</source>
        <translation>Benachrichtigungen können nicht gezeigt werden: Auf diesem Desktop läuft kein Benachrichtigungsdienst.</translation>
    </message>
    <message>
        <source>Show Invoice</source>
        <translation>Rechnung zeigen</translation>
    </message>
</context>
<context>
    <name>NotifyCommand</name>
    <message>
        <source>“%1” is not an ISO 8601 date or moment (2026-12-03 or 2026-12-03T09:00).</source>
        <translation>“%1” ist kein Datum oder Zeitpunkt nach ISO 8601 (2026-12-03 oder 2026-12-03T09:00).</translation>
    </message>
    <message>
        <source>Schedule a reminder of a document: by default three days after it is due, titled with its title and number, with the address&apos;s first line as subtitle. A second reminder of the same document needs --yes. Prints the reminder&apos;s number.</source>
        <translation>Plant eine Erinnerung an ein Dokument: standardmäßig drei Tage nach Fälligkeit, mit seinem Titel und seiner Nummer als Titel und der ersten Adresszeile als Untertitel. Eine zweite Erinnerung an dasselbe Dokument braucht --yes. Gibt die Nummer der Erinnerung aus.</translation>
    </message>
    <message>
        <source>When to show it.</source>
        <translation>Wann sie gezeigt wird.</translation>
    </message>
    <message>
        <source>Title.</source>
        <translation>Titel.</translation>
    </message>
    <message>
        <source>Subtitle.</source>
        <translation>Untertitel.</translation>
    </message>
    <message>
        <source>Informative text.</source>
        <translation>Informativer Text.</translation>
    </message>
    <message>
        <source> The reminder is kept and shown by the first Tabo that can.</source>
        <translation> Die Erinnerung bleibt erhalten und wird vom ersten Tabo gezeigt, das es kann.</translation>
    </message>
    <message>
        <source>The scheduled reminders: list them, cancel one by its number, or show those whose moment has come (what the reminder timer runs every hour). With --wait the run stays up to SECONDS after showing something, so that a click opens Tabo on the invoice.</source>
        <translation>Die geplanten Erinnerungen: auflisten, eine über ihre Nummer absagen oder die zeigen, deren Zeitpunkt gekommen ist (was der Erinnerungs-Timer stündlich ausführt). Mit --wait bleibt der Lauf bis zu SEKUNDEN nach dem Zeigen bestehen, damit ein Klick Tabo auf der Rechnung öffnet.</translation>
    </message>
    <message>
        <source>Missing list, cancel or deliver-due.</source>
        <translation>list, cancel oder deliver-due fehlt.</translation>
    </message>
    <message>
        <source>Unknown “%1”: list, cancel or deliver-due.</source>
        <translation>Unbekannt “%1”: list, cancel oder deliver-due.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>JSON ausgeben.</translation>
    </message>
    <message>
        <source>“%1” is not a reminder&apos;s number (see “notifications list”).</source>
        <translation>“%1” ist keine Erinnerungsnummer (siehe “notifications list”).</translation>
    </message>
    <message>
        <source>Stay for clicks.</source>
        <translation>Für Klicks geöffnet bleiben.</translation>
    </message>
    <message>
        <source>1 reminder shown.
</source>
        <translation>1 Erinnerung gezeigt.
</translation>
    </message>
    <message>
        <source>--wait takes a number of seconds.</source>
        <translation>--wait nimmt eine Anzahl Sekunden.</translation>
    </message>
    <message>
        <source>Repeated invoices written: %1.</source>
        <translation>Wiederkehrende Rechnungen geschrieben: %1.</translation>
    </message>
</context>
<context>
    <name>NumberCounters</name>
    <message>
        <source>The counter “%1” could not be stored: %2</source>
        <translation>Der Zähler “%1” konnte nicht gespeichert werden: %2</translation>
    </message>
</context>
<context>
    <name>Numbering</name>
    <message>
        <source>The pattern needs %COUNT%, or every document gets the same number.</source>
        <translation>Das Muster braucht %COUNT%, sonst erhält jedes Dokument dieselbe Nummer.</translation>
    </message>
</context>
<context>
    <name>OutputCommands</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The PDF file “%1” could not be read.</source>
        <translation>Die PDF-Datei “%1” konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Fehler!</translation>
    </message>
    <message>
        <source>No design available. Please download or create a design.</source>
        <translation>Kein Design verfügbar. Bitte laden oder erstellen Sie ein Design.</translation>
    </message>
    <message>
        <source>Print Invoice</source>
        <translation>Rechnung drucken</translation>
    </message>
    <message>
        <source>Export Invoice As PDF File</source>
        <translation>Rechnung als PDF-Datei exportieren</translation>
    </message>
    <message>
        <source>Send Invoice As Email Attachment</source>
        <translation>Rechnung als E-Mail-Anhang senden</translation>
    </message>
    <message>
        <source>Export Invoice As Document</source>
        <translation>Rechnung als Dokument exportieren</translation>
    </message>
    <message>
        <source>Export As PDF File</source>
        <translation>Als PDF-Datei exportieren</translation>
    </message>
    <message>
        <source>Export As E-Invoice (XRechnung)</source>
        <translation>Als E-Rechnung exportieren (XRechnung)</translation>
    </message>
    <message>
        <source>Export As PDF With E-Invoice</source>
        <translation>Als PDF mit E-Rechnung exportieren</translation>
    </message>
    <message>
        <source>The E-Mail Could Not Be Written</source>
        <translation>Die E-Mail konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>

You can save the PDF and attach it to a message yourself, or open the folder that holds it.</source>
        <translation>

Sie können das PDF speichern und selbst an eine Nachricht anhängen oder den Ordner öffnen, der es enthält.</translation>
    </message>
    <message>
        <source>Save PDF…</source>
        <translation>PDF speichern…</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Mark as Sent</source>
        <translation>Als gesendet markieren</translation>
    </message>
    <message>
        <source>The design “%1” laid the document out on %2 pages, far more than its lines can fill, so no PDF was made. Choose another design or fix this one in Preferences ▸ Designs.</source>
        <translation>Das Design “%1” hat das Dokument auf %2 Seiten verteilt, weit mehr, als seine Zeilen füllen können; daher wurde kein PDF erstellt. Wählen Sie ein anderes Design oder reparieren Sie dieses unter Einstellungen ▸ Designs.</translation>
    </message>
    <message>
        <source>Ooops!</source>
        <translation>Hoppla!</translation>
    </message>
    <message>
        <source>Something went really wrong while creating the design preview.</source>
        <translation>Beim Erstellen der Design-Vorschau ist etwas gründlich schiefgegangen.</translation>
    </message>
    <message>
        <source>Something went really wrong while creating the preview.</source>
        <translation>Beim Erstellen der Vorschau ist etwas gründlich schiefgegangen.</translation>
    </message>
</context>
<context>
    <name>OutputRun</name>
    <message>
        <source>No design titled “%1”.</source>
        <translation>Kein Design mit dem Titel “%1”.</translation>
    </message>
    <message>
        <source>%1 designs are titled “%2”; give its unique ID instead: %3.</source>
        <translation>%1 Designs heißen “%2”; geben Sie stattdessen seine eindeutige ID an: %3.</translation>
    </message>
    <message>
        <source>“%1” is the ID of %2 designs; give its title instead.</source>
        <translation>“%1” ist die ID von %2 Designs; geben Sie stattdessen seinen Titel an.</translation>
    </message>
</context>
<context>
    <name>PaymentCommands</name>
    <message>
        <source>No database is open.</source>
        <translation>Es ist keine Datenbank geöffnet.</translation>
    </message>
    <message>
        <source>Import Bank Statement</source>
        <translation>Kontoauszug importieren</translation>
    </message>
    <message>
        <source>Payments</source>
        <translation>Zahlungen</translation>
    </message>
</context>
<context>
    <name>PaymentLedger</name>
    <message>
        <source>The payments taken in could not be read or written: %1</source>
        <translation>Die übernommenen Zahlungen konnten nicht gelesen oder geschrieben werden: %1</translation>
    </message>
</context>
<context>
    <name>PaymentsCommand</name>
    <message>
        <source>Print JSON.</source>
        <translation>JSON ausgeben.</translation>
    </message>
    <message>
        <source>Take in the sure matches.</source>
        <translation>Die sicheren Zuordnungen übernehmen.</translation>
    </message>
    <message>
        <source>Unknown “%1”: import.</source>
        <translation>Unbekannt “%1”: import.</translation>
    </message>
    <message>
        <source>Payments taken in: %1.</source>
        <translation>Übernommene Zahlungen: %1.</translation>
    </message>
    <message>
        <source>Read a bank statement (CAMT.053, CAMT.054, MT940 or CSV) and match its credits against the open invoices: sure (the text names the invoice and the amount is what it owes), proposed, ambiguous, none, or imported before. --apply takes in the sure matches: the invoice is paid or partly paid. A booking is never taken in twice. --columns names the columns of a CSV export whose headings are not recognised (date, amount or credit and debit, currency, payer, iban, text, reference; by number or heading); they are remembered for files laid out like it.</source>
        <translation>Einen Kontoauszug lesen (CAMT.053, CAMT.054, MT940 oder CSV) und seine Gutschriften den offenen Rechnungen zuordnen: sicher (der Text nennt die Rechnung und der Betrag ist, was sie schuldet), vorgeschlagen, mehrdeutig, keine oder schon früher übernommen. --apply übernimmt die sicheren Zuordnungen: Die Rechnung ist bezahlt oder teilweise bezahlt. Keine Buchung wird zweimal übernommen. --columns nennt die Spalten eines CSV-Exports, dessen Überschriften nicht erkannt werden (date, amount oder credit und debit, currency, payer, iban, text, reference; nach Nummer oder Überschrift); sie werden für gleich aufgebaute Dateien gemerkt.</translation>
    </message>
    <message>
        <source>The columns of a CSV statement.</source>
        <translation>Die Spalten eines CSV-Kontoauszugs.</translation>
    </message>
</context>
<context>
    <name>PrefRules</name>
    <message>
        <source>The counter</source>
        <translation>Der Zähler</translation>
    </message>
    <message>
        <source>The number of days</source>
        <translation>Die Anzahl der Tage</translation>
    </message>
    <message>
        <source>The rate cannot be below 0 %.</source>
        <translation>Der Satz darf nicht unter 0 % liegen.</translation>
    </message>
    <message>
        <source>The rate cannot be above 1000 % (rates are fractions: 0.19 is 19 %).</source>
        <translation>Der Satz darf nicht über 1000 % liegen (Sätze sind Brüche: 0,19 sind 19 %).</translation>
    </message>
    <message>
        <source>The folder “%1” does not exist.</source>
        <translation>Der Ordner “%1” existiert nicht.</translation>
    </message>
    <message>
        <source>%1 cannot be below 0.</source>
        <translation>%1 darf nicht kleiner als 0 sein.</translation>
    </message>
    <message>
        <source>%1 cannot be above %2.</source>
        <translation>%1 darf nicht größer als %2 sein.</translation>
    </message>
    <message>
        <source>“%1” is no region; use a name such as de_DE or fr_FR.</source>
        <translation>“%1” ist keine Region; verwenden Sie einen Namen wie de_DE oder fr_FR.</translation>
    </message>
    <message>
        <source>“%1” is not an absolute path; name the folder from the root (/…).</source>
        <translation>“%1” ist kein absoluter Pfad; nennen Sie den Ordner ab der Wurzel (/…).</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>It cannot be read (%1).</source>
        <translation>Sie kann nicht gelesen werden (%1).</translation>
    </message>
    <message>
        <source>It holds binary data.</source>
        <translation>Sie enthält Binärdaten.</translation>
    </message>
    <message>
        <source>It is not text.</source>
        <translation>Sie ist kein Text.</translation>
    </message>
    <message>
        <source>Line %1 is neither a section nor a setting.</source>
        <translation>Zeile %1 ist weder ein Abschnitt noch eine Einstellung.</translation>
    </message>
    <message>
        <source>The settings file “%1” is damaged. %2 Tabo has left it as it is.%3</source>
        <translation>Die Einstellungsdatei “%1” ist beschädigt. %2 Tabo hat sie so belassen, wie sie ist.%3</translation>
    </message>
    <message>
        <source>The settings file “%1” cannot be read. Tabo has left it as it is.</source>
        <translation>Die Einstellungsdatei “%1” kann nicht gelesen werden. Tabo hat sie so belassen, wie sie ist.</translation>
    </message>
    <message>
        <source>There are no kept settings (“%1”) to restore.</source>
        <translation>Es gibt keine aufbewahrten Einstellungen (“%1”) zum Wiederherstellen.</translation>
    </message>
    <message>
        <source>The kept settings “%1” are damaged too: %2</source>
        <translation>Die aufbewahrten Einstellungen “%1” sind ebenfalls beschädigt: %2</translation>
    </message>
    <message>
        <source>unknown preference key “%1”</source>
        <translation>unbekannter Einstellungsschlüssel “%1”</translation>
    </message>
    <message>
        <source>“%1” is not a valid %2 for %3</source>
        <translation>“%1” ist kein gültiger Wert für %2 bei %3</translation>
    </message>
    <message>
        <source>readable file</source>
        <translation>lesbare Datei</translation>
    </message>
    <message>
        <source>The settings file is locked by another program (process %1) that has held it for more than %2 seconds. Quit that program (or end process %1) and try again; nothing was changed.</source>
        <translation>Die Einstellungsdatei ist von einem anderen Programm (Prozess %1) gesperrt, das sie seit mehr als %2 Sekunden hält. Beenden Sie dieses Programm (oder Prozess %1) und versuchen Sie es erneut; nichts wurde geändert.</translation>
    </message>
    <message>
        <source>The settings file “%1” is not a file (a folder or something else stands in its place). Tabo has left it as it is; move it away and start again.</source>
        <translation>Die Einstellungsdatei “%1” ist keine Datei (ein Ordner oder etwas anderes steht an ihrer Stelle). Tabo hat sie so belassen; verschieben Sie sie und starten Sie neu.</translation>
    </message>
    <message>
        <source> The last good settings are kept in “%1”; restore them with tabo-cli prefs restore.</source>
        <translation> Die letzten guten Einstellungen liegen in “%1”; stellen Sie sie mit tabo-cli prefs restore wieder her.</translation>
    </message>
    <message>
        <source>“%1” could not be moved aside; nothing was restored.</source>
        <translation>“%1” konnte nicht beiseitegelegt werden; nichts wurde wiederhergestellt.</translation>
    </message>
    <message>
        <source>“%1” could not be written; nothing was restored.</source>
        <translation>“%1” konnte nicht geschrieben werden; nichts wurde wiederhergestellt.</translation>
    </message>
    <message>
        <source>The settings file “%1” could not be written (the disk may be full or the file read-only); the change was not stored.</source>
        <translation>Die Einstellungsdatei “%1” konnte nicht geschrieben werden (vielleicht ist die Festplatte voll oder die Datei schreibgeschützt); die Änderung wurde nicht gespeichert.</translation>
    </message>
</context>
<context>
    <name>PrefsCommand</name>
    <message>
        <source>Print JSON.</source>
        <translation>JSON ausgeben.</translation>
    </message>
    <message>
        <source>Restored the last good settings from “%1”.</source>
        <translation>Die letzten guten Einstellungen aus “%1” wurden wiederhergestellt.</translation>
    </message>
    <message>
        <source>Unknown preference key “%1”.</source>
        <translation>Unbekannter Einstellungsschlüssel “%1”.</translation>
    </message>
    <message>
        <source>Name the folder first: tabo-cli prefs set customDatabasePath FOLDER.</source>
        <translation>Nennen Sie zuerst den Ordner: tabo-cli prefs set customDatabasePath ORDNER.</translation>
    </message>
    <message>
        <source>“%1” is not a number.</source>
        <translation>“%1” ist keine Zahl.</translation>
    </message>
    <message>
        <source>New documents are calculated to the cent. %1 (tabo-cli prefs set centExactTotals false keeps the classic calculation.)</source>
        <translation>Neue Dokumente werden centgenau berechnet. %1 (tabo-cli prefs set centExactTotals false behält die klassische Berechnung.)</translation>
    </message>
    <message>
        <source>The language defaults %1 could not be read.</source>
        <translation>Die Sprachvorgaben %1 konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>List every preference with its type and value (stored, or the default); read or write one; install the language defaults (0 English, 1 German, 2 French, 3 Spanish); put the last good settings (Tabo.conf.bak) back in place of a damaged file.</source>
        <translation>Listet jede Einstellung mit Typ und Wert (gespeichert oder Vorgabe); liest oder schreibt eine; installiert die Sprachvorgaben (0 Englisch, 1 Deutsch, 2 Französisch, 3 Spanisch); setzt die letzten guten Einstellungen (Tabo.conf.bak) anstelle einer beschädigten Datei ein.</translation>
    </message>
    <message>
        <source>--json belongs to “prefs list”.</source>
        <translation>--json gehört zu “prefs list”.</translation>
    </message>
    <message>
        <source>The database was not moved; the settings still name where it is.</source>
        <translation>Die Datenbank wurde nicht verschoben; die Einstellungen nennen weiterhin ihren Ort.</translation>
    </message>
    <message>
        <source>No language defaults for %1; nothing was installed.</source>
        <translation>Keine Sprachvorgaben für %1; nichts wurde installiert.</translation>
    </message>
</context>
<context>
    <name>PrintCommand</name>
    <message>
        <source>Printer to use.</source>
        <translation>Zu verwendender Drucker.</translation>
    </message>
    <message>
        <source>Print a document (default printer unless --printer); an invoice is then marked as sent when markInvoiceAsSent is on.</source>
        <translation>Druckt ein Dokument (Standarddrucker, außer mit --printer); eine Rechnung wird dann als gesendet markiert, wenn markInvoiceAsSent an ist.</translation>
    </message>
    <message>
        <source>--printer needs a printer name.</source>
        <translation>--printer braucht einen Druckernamen.</translation>
    </message>
</context>
<context>
    <name>PrintSystem</name>
    <message>
        <source>The print system did not answer in time.</source>
        <translation>Das Drucksystem hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>lp ended with code %1</source>
        <translation>lp endete mit Code %1</translation>
    </message>
    <message>
        <source>The document could not be printed: %1</source>
        <translation>Das Dokument konnte nicht gedruckt werden: %1</translation>
    </message>
    <message>
        <source>The print system could not be reached: the program &quot;lp&quot; was not found.</source>
        <translation>Das Drucksystem ist nicht erreichbar: Das Programm &quot;lp&quot; wurde nicht gefunden.</translation>
    </message>
</context>
<context>
    <name>PrinterDocument</name>
    <message>
        <source>Error: Recursion</source>
        <translation>Fehler: Rekursion</translation>
    </message>
</context>
<context>
    <name>PropertyList</name>
    <message>
        <source>empty property list</source>
        <translation>leere Property-List</translation>
    </message>
    <message>
        <source>property list too large</source>
        <translation>Property-List zu groß</translation>
    </message>
    <message>
        <source>unsupported binary property list version</source>
        <translation>nicht unterstützte Version der binären Property-List</translation>
    </message>
    <message>
        <source>not a property list</source>
        <translation>keine Property-List</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>%1 kann nicht geöffnet werden: %2</translation>
    </message>
</context>
<context>
    <name>ProtectedFiles</name>
    <message>
        <source>the database</source>
        <translation>die Datenbank</translation>
    </message>
    <message>
        <source>a file of the database</source>
        <translation>eine Datei der Datenbank</translation>
    </message>
    <message>
        <source>the settings file</source>
        <translation>die Einstellungsdatei</translation>
    </message>
    <message>
        <source>the settings file&apos;s lock</source>
        <translation>die Sperre der Einstellungsdatei</translation>
    </message>
    <message>
        <source>the kept copy of the settings</source>
        <translation>die aufbewahrte Kopie der Einstellungen</translation>
    </message>
    <message>
        <source>an automatic backup</source>
        <translation>eine automatische Sicherung</translation>
    </message>
    <message>
        <source>The file “%1” could not be written: %2</source>
        <translation>Die Datei “%1” konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>“%1” is %2 (%3). Tabo never writes anything else onto it; please choose another file.</source>
        <translation>“%1” ist %2 (%3). Tabo schreibt niemals etwas anderes darauf; bitte wählen Sie eine andere Datei.</translation>
    </message>
</context>
<context>
    <name>QVPreferencePanel</name>
    <message>
        <source>Company</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Rechnung</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Steuern</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Clients</source>
        <translation>Kunden</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Angebot</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Mahnung</translation>
    </message>
    <message>
        <source>Slip</source>
        <translation>Lieferschein</translation>
    </message>
</context>
<context>
    <name>Reader</name>
    <message>
        <source>The file nests its elements more deeply than any e-invoice does.</source>
        <translation>Die Datei verschachtelt ihre Elemente tiefer als jede E-Rechnung.</translation>
    </message>
    <message>
        <source>The CII file has no trade transaction: it holds no invoice.</source>
        <translation>Die CII-Datei hat keinen Handelsvorgang: Sie enthält keine Rechnung.</translation>
    </message>
    <message>
        <source>The CII file has no settlement: its totals are missing.</source>
        <translation>Die CII-Datei hat keine Abrechnung: Ihre Summen fehlen.</translation>
    </message>
    <message>
        <source>The invoice states no grand total or amount due: its totals are missing.</source>
        <translation>Die Rechnung nennt keinen Gesamt- oder fälligen Betrag: Ihre Summen fehlen.</translation>
    </message>
    <message>
        <source>The invoice states no total with VAT or amount due: its totals are missing.</source>
        <translation>Die Rechnung nennt keinen Bruttobetrag oder fälligen Betrag: Ihre Summen fehlen.</translation>
    </message>
    <message>
        <source>The PDF carries no e-invoice: it has no XML attachment.</source>
        <translation>Das PDF enthält keine E-Rechnung: Es hat keinen XML-Anhang.</translation>
    </message>
    <message>
        <source>The PDF&apos;s e-invoice attachment cannot be unpacked.</source>
        <translation>Der E-Rechnungs-Anhang des PDFs kann nicht entpackt werden.</translation>
    </message>
    <message>
        <source>The PDF is too large to be read.</source>
        <translation>Das PDF ist zu groß, um es zu lesen.</translation>
    </message>
    <message>
        <source>The PDF cannot be read: %1</source>
        <translation>Das PDF kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>This is not an e-invoice: its root is “%1” in the namespace “%2”, not a CII or UBL invoice.</source>
        <translation>Dies ist keine E-Rechnung: Ihr Wurzelelement ist “%1” im Namensraum “%2”, keine CII- oder UBL-Rechnung.</translation>
    </message>
    <message>
        <source>The e-invoice states amounts that are no readable amounts of money: %1.</source>
        <translation>Die E-Rechnung nennt Beträge, die keine lesbaren Geldbeträge sind: %1.</translation>
    </message>
    <message>
        <source>There is no file “%1”.</source>
        <translation>Es gibt keine Datei “%1”.</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2</source>
        <translation>“%1” kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Line %1 (%2) is %3, but its quantity %4 × price %5 makes %6.</source>
        <translation>Zeile %1 (%2) beträgt %3, aber Menge %4 × Preis %5 ergibt %6.</translation>
    </message>
    <message>
        <source>The sum of the lines</source>
        <translation>Die Summe der Zeilen</translation>
    </message>
    <message>
        <source>The allowances</source>
        <translation>Die Nachlässe</translation>
    </message>
    <message>
        <source>The charges</source>
        <translation>Die Zuschläge</translation>
    </message>
    <message>
        <source>The total without VAT</source>
        <translation>Der Nettobetrag</translation>
    </message>
    <message>
        <source>The VAT</source>
        <translation>Die Umsatzsteuer</translation>
    </message>
    <message>
        <source>The total with VAT</source>
        <translation>Der Bruttobetrag</translation>
    </message>
    <message>
        <source>The amount due</source>
        <translation>Der fällige Betrag</translation>
    </message>
    <message>
        <source>Tax number %1</source>
        <translation>Steuernummer %1</translation>
    </message>
    <message>
        <source>Contact: %1</source>
        <translation>Kontakt: %1</translation>
    </message>
    <message>
        <source>Credit note</source>
        <translation>Gutschrift</translation>
    </message>
    <message>
        <source> in a PDF</source>
        <translation> in einem PDF</translation>
    </message>
    <message>
        <source>Date %1</source>
        <translation>Datum %1</translation>
    </message>
    <message>
        <source>due %1</source>
        <translation>fällig %1</translation>
    </message>
    <message>
        <source>delivered %1</source>
        <translation>geliefert %1</translation>
    </message>
    <message>
        <source>buyer reference %1</source>
        <translation>Käuferreferenz %1</translation>
    </message>
    <message>
        <source>for invoice %1 %2</source>
        <translation>für Rechnung %1 %2</translation>
    </message>
    <message>
        <source>Sum of lines</source>
        <translation>Summe der Zeilen</translation>
    </message>
    <message>
        <source>Total without VAT</source>
        <translation>Nettobetrag</translation>
    </message>
    <message>
        <source>VAT %1 on %2%3</source>
        <translation>USt %1 auf %2%3</translation>
    </message>
    <message>
        <source>Total with VAT</source>
        <translation>Bruttobetrag</translation>
    </message>
    <message>
        <source>Paid in advance</source>
        <translation>Im Voraus bezahlt</translation>
    </message>
    <message>
        <source>Paid by third parties</source>
        <translation>Von Dritten bezahlt</translation>
    </message>
    <message>
        <source>Amount due</source>
        <translation>Fälliger Betrag</translation>
    </message>
    <message>
        <source>The file declares a DTD; e-invoices never do, so it is not read.</source>
        <translation>Die Datei deklariert eine DTD; E-Rechnungen tun das nie, daher wird sie nicht gelesen.</translation>
    </message>
    <message>
        <source>The PDF&apos;s e-invoice unpacks to more than %1 MB; e-invoices are far smaller, so it is not read.</source>
        <translation>Die E-Rechnung des PDFs entpackt sich auf mehr als %1 MB; E-Rechnungen sind viel kleiner, daher wird sie nicht gelesen.</translation>
    </message>
    <message>
        <source>“%1” is %2 MB large; e-invoices are far smaller, so it is not read.</source>
        <translation>“%1” ist %2 MB groß; E-Rechnungen sind viel kleiner, daher wird sie nicht gelesen.</translation>
    </message>
    <message>
        <source>%1 is %2, but its parts add up to %3.</source>
        <translation>%1 beträgt %2, aber seine Teile ergeben %3.</translation>
    </message>
    <message>
        <source>VAT ID %1</source>
        <translation>USt-IdNr. %1</translation>
    </message>
    <message>
        <source>E-invoices: %1</source>
        <translation>E-Rechnungen: %1</translation>
    </message>
    <message>
        <source>Received e-invoice · %1%2 · %3</source>
        <translation>Empfangene E-Rechnung · %1%2 · %3</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Rechnung</translation>
    </message>
    <message>
        <source>Seller</source>
        <translation>Verkäufer</translation>
    </message>
    <message>
        <source>Buyer</source>
        <translation>Käufer</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Preis</translation>
    </message>
    <message>
        <source>VAT</source>
        <translation>USt</translation>
    </message>
    <message>
        <source>Net</source>
        <translation>Netto</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Zuschlag</translation>
    </message>
    <message>
        <source>Allowance</source>
        <translation>Nachlass</translation>
    </message>
    <message>
        <source>Rounding</source>
        <translation>Rundung</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Zahlung</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Its sums do not add up</source>
        <translation>Ihre Summen gehen nicht auf</translation>
    </message>
</context>
<context>
    <name>Recurrence</name>
    <message>
        <source>month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>months</source>
        <translation>Monate</translation>
    </message>
    <message>
        <source>quarter</source>
        <translation>Quartal</translation>
    </message>
    <message>
        <source>quarters</source>
        <translation>Quartale</translation>
    </message>
    <message>
        <source>year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>years</source>
        <translation>Jahre</translation>
    </message>
    <message>
        <source>week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>weeks</source>
        <translation>Wochen</translation>
    </message>
    <message>
        <source>“%1” is no interval: say month, quarter, year or a number of weeks (“2 weeks”).</source>
        <translation>„%1“ ist kein Abstand: Sagen Sie Monat, Quartal, Jahr oder eine Zahl von Wochen („2 Wochen“).</translation>
    </message>
    <message>
        <source>An invoice cannot repeat every %1 %2; the interval must be at least 1.</source>
        <translation>Eine Rechnung kann sich nicht alle %1 %2 wiederholen; der Abstand muss mindestens 1 sein.</translation>
    </message>
    <message>
        <source>A repeated invoice needs the day of its first invoice.</source>
        <translation>Eine wiederkehrende Rechnung braucht den Tag ihrer ersten Rechnung.</translation>
    </message>
    <message>
        <source>The last day (%1) lies before the first (%2).</source>
        <translation>Der letzte Tag (%1) liegt vor dem ersten (%2).</translation>
    </message>
    <message>
        <source>The number of invoices cannot be negative.</source>
        <translation>Die Zahl der Rechnungen kann nicht negativ sein.</translation>
    </message>
    <message>
        <source>every week</source>
        <translation>jede Woche</translation>
    </message>
    <message>
        <source>every %1 weeks</source>
        <translation>alle %1 Wochen</translation>
    </message>
    <message>
        <source>every month</source>
        <translation>jeden Monat</translation>
    </message>
    <message>
        <source>every quarter</source>
        <translation>jedes Quartal</translation>
    </message>
    <message>
        <source>every year</source>
        <translation>jedes Jahr</translation>
    </message>
    <message>
        <source>every %1 months</source>
        <translation>alle %1 Monate</translation>
    </message>
</context>
<context>
    <name>RecurringCommand</name>
    <message>
        <source>month, quarter, year or N weeks.</source>
        <translation>month, quarter, year oder N weeks.</translation>
    </message>
    <message>
        <source>The day of the first invoice.</source>
        <translation>Der Tag der ersten Rechnung.</translation>
    </message>
    <message>
        <source>The last day an invoice may fall on.</source>
        <translation>Der letzte Tag, auf den eine Rechnung fallen darf.</translation>
    </message>
    <message>
        <source>How many invoices in all.</source>
        <translation>Wie viele Rechnungen insgesamt.</translation>
    </message>
    <message>
        <source>add: e-mail each invoice when written; run: send those now.</source>
        <translation>add: jede Rechnung nach dem Schreiben per E-Mail senden; run: diese jetzt senden.</translation>
    </message>
    <message>
        <source>Say which invoices would be written; write none.</source>
        <translation>Sagen, welche Rechnungen geschrieben würden; keine schreiben.</translation>
    </message>
    <message>
        <source>Invoices that repeat. add copies an invoice or a template on every date from --from: numbered by the invoice pattern, dated on its day, %PERIOD% in its texts filled with the period it bills. run writes every date that has come, those missed meanwhile too, each once; with --send it e-mails those whose schedule says so.</source>
        <translation>Rechnungen, die sich wiederholen. add kopiert eine Rechnung oder Vorlage an jedem Termin ab --from: nummeriert nach dem Rechnungsmuster, auf ihren Tag datiert, %PERIOD% in ihren Texten durch den abgerechneten Zeitraum ersetzt. run schreibt jeden Termin, der gekommen ist, auch die inzwischen verpassten, jeden einmal; mit --send verschickt es per E-Mail, was der Zeitplan so vorsieht.</translation>
    </message>
    <message>
        <source>Unknown “%1”: add, list, pause, resume, remove or run.</source>
        <translation>Unbekannt „%1“: add, list, pause, resume, remove oder run.</translation>
    </message>
    <message>
        <source>%1 takes the number of a repeated invoice, as the list shows it.</source>
        <translation>%1 erwartet die Nummer einer wiederkehrenden Rechnung, wie die Liste sie zeigt.</translation>
    </message>
    <message>
        <source>add needs --every and --from.</source>
        <translation>add braucht --every und --from.</translation>
    </message>
    <message>
        <source>Give --until or --count, not both.</source>
        <translation>Geben Sie --until oder --count an, nicht beides.</translation>
    </message>
    <message>
        <source>Dates are written as YYYY-MM-DD.</source>
        <translation>Daten werden als JJJJ-MM-TT geschrieben.</translation>
    </message>
    <message>
        <source>--count takes a number of invoices above 0.</source>
        <translation>--count erwartet eine Zahl von Rechnungen über 0.</translation>
    </message>
    <message>
        <source>Repeated invoice %1: %2 %3, the first on %4.</source>
        <translation>Wiederkehrende Rechnung %1: %2 %3, die erste am %4.</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>pausiert</translation>
    </message>
    <message>
        <source>next %1</source>
        <translation>nächste %1</translation>
    </message>
    <message>
        <source>ended</source>
        <translation>beendet</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 geschrieben</translation>
    </message>
    <message>
        <source>, e-mailed</source>
        <translation>, per E-Mail</translation>
    </message>
    <message>
        <source>Would write repeated invoice %1 of %2.</source>
        <translation>Würde wiederkehrende Rechnung %1 vom %2 schreiben.</translation>
    </message>
</context>
<context>
    <name>RecurringCommands</name>
    <message>
        <source>No database is open.</source>
        <translation>Es ist keine Datenbank geöffnet.</translation>
    </message>
    <message>
        <source>There is no repeated invoice %1.</source>
        <translation>Es gibt keine wiederkehrende Rechnung %1.</translation>
    </message>
    <message>
        <source>“%1” (no longer there)</source>
        <translation>„%1“ (nicht mehr vorhanden)</translation>
    </message>
    <message>
        <source>Template “%1”</source>
        <translation>Vorlage „%1“</translation>
    </message>
    <message>
        <source>Invoice %1</source>
        <translation>Rechnung %1</translation>
    </message>
    <message>
        <source>Invoice %1 (%2)</source>
        <translation>Rechnung %1 (%2)</translation>
    </message>
    <message>
        <source>“%1” names %2 documents; give the document&apos;s ID instead.</source>
        <translation>„%1“ bezeichnet %2 Dokumente; geben Sie stattdessen die ID des Dokuments an.</translation>
    </message>
    <message>
        <source>“%1” is a quote; only an invoice or a template repeats.</source>
        <translation>„%1“ ist ein Angebot; nur eine Rechnung oder eine Vorlage wiederholt sich.</translation>
    </message>
    <message>
        <source>There is no invoice or template “%1”.</source>
        <translation>Es gibt keine Rechnung und keine Vorlage „%1“.</translation>
    </message>
    <message>
        <source>Repeated invoice %1 is not written: its invoice or template “%2” is no longer there.</source>
        <translation>Wiederkehrende Rechnung %1 wird nicht geschrieben: Ihre Rechnung oder Vorlage „%2“ ist nicht mehr vorhanden.</translation>
    </message>
</context>
<context>
    <name>ReminderTimer</name>
    <message>
        <source>systemd could not be asked (%1 did not start).</source>
        <translation>systemd konnte nicht gefragt werden (%1 ist nicht gestartet).</translation>
    </message>
    <message>
        <source>systemd did not answer in time.</source>
        <translation>systemd hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>systemd refused: %1</source>
        <translation>systemd hat abgelehnt: %1</translation>
    </message>
    <message>
        <source>The reminder timer needs tabo-cli, which is not at “%1”.</source>
        <translation>Der Erinnerungs-Timer braucht tabo-cli, das nicht unter “%1” liegt.</translation>
    </message>
    <message>
        <source>The file “%1” could not be written.</source>
        <translation>Die Datei “%1” konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The reminder timer could not be installed. </source>
        <translation>Der Erinnerungs-Timer konnte nicht installiert werden. </translation>
    </message>
    <message>
        <source>The file “%1” could not be removed.</source>
        <translation>Die Datei “%1” konnte nicht entfernt werden.</translation>
    </message>
</context>
<context>
    <name>RenderCommand</name>
    <message>
        <source>Write a document&apos;s page as HTML or PDF (as a payment reminder or delivery slip with the sheet&apos;s default texts), or one PDF per document, named after its number, into a folder. --design renders through that design instead of the default one.</source>
        <translation>Schreibt die Seite eines Dokuments als HTML oder PDF (als Zahlungserinnerung oder Lieferschein mit den Standardtexten des Blatts) oder ein PDF pro Dokument, benannt nach seiner Nummer, in einen Ordner. --design stellt mit diesem Design statt dem Standarddesign dar.</translation>
    </message>
    <message>
        <source>HTML file to write.</source>
        <translation>Zu schreibende HTML-Datei.</translation>
    </message>
    <message>
        <source>PDF file to write.</source>
        <translation>Zu schreibende PDF-Datei.</translation>
    </message>
    <message>
        <source>Folder for one PDF per document.</source>
        <translation>Ordner für je ein PDF pro Dokument.</translation>
    </message>
    <message>
        <source>Every document the list shows.</source>
        <translation>Jedes Dokument, das die Liste zeigt.</translation>
    </message>
    <message>
        <source>Filter tag (with --all).</source>
        <translation>Filter-Tag (mit --all).</translation>
    </message>
    <message>
        <source>As a payment reminder.</source>
        <translation>Als Zahlungserinnerung.</translation>
    </message>
    <message>
        <source>As a delivery slip.</source>
        <translation>Als Lieferschein.</translation>
    </message>
    <message>
        <source>Design to render with.</source>
        <translation>Design für die Darstellung.</translation>
    </message>
    <message>
        <source>Give one of --html, --pdf and --out.</source>
        <translation>Geben Sie eines von --html, --pdf und --out an.</translation>
    </message>
    <message>
        <source>Give at most one of --reminder and --slip.</source>
        <translation>Geben Sie höchstens eines von --reminder und --slip an.</translation>
    </message>
    <message>
        <source>Give IDs or --all, not both.</source>
        <translation>Geben Sie IDs oder --all an, nicht beides.</translation>
    </message>
    <message>
        <source>Missing argument.</source>
        <translation>Argument fehlt.</translation>
    </message>
    <message>
        <source>The design “%1” cannot be used: its page, row or style text is missing. Choose another design (tabo-cli design list) or fix this one.</source>
        <translation>Das Design “%1” kann nicht verwendet werden: Sein Seiten-, Zeilen- oder Stiltext fehlt. Wählen Sie ein anderes Design (tabo-cli design list) oder reparieren Sie dieses.</translation>
    </message>
    <message>
        <source>The PDF file “%1” could not be created.</source>
        <translation>Die PDF-Datei “%1” konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>The folder “%1” could not be created.</source>
        <translation>Der Ordner “%1” konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>--filter goes with --all.</source>
        <translation>--filter gehört zu --all.</translation>
    </message>
    <message>
        <source>--html and --pdf write one document; use --out DIR for several.</source>
        <translation>--html und --pdf schreiben ein Dokument; verwenden Sie --out DIR für mehrere.</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>1 invoice</source>
        <translation>1 Rechnung</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Rechnungen</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Durchschnitt</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>Fällig</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Bezahlt</translation>
    </message>
</context>
<context>
    <name>ReportCommand</name>
    <message>
        <source>The report over the documents a filter and search show: counts, sums and averages (with --json by their placeholder names), revenue per month and the five clients with the most. --from and --to limit it to invoices dated in between, both days included.</source>
        <translation>Der Bericht über die Dokumente, die Filter und Suche zeigen: Anzahlen, Summen und Durchschnitte (mit --json unter ihren Platzhalternamen), Umsatz pro Monat und die fünf Kunden mit dem meisten. --from und --to beschränken ihn auf Rechnungen mit Datum dazwischen, beide Tage eingeschlossen.</translation>
    </message>
    <message>
        <source>First day.</source>
        <translation>Erster Tag.</translation>
    </message>
    <message>
        <source>Last day.</source>
        <translation>Letzter Tag.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>JSON ausgeben.</translation>
    </message>
    <message>
        <source>Write the report page.</source>
        <translation>Die Berichtsseite schreiben.</translation>
    </message>
    <message>
        <source>Write the report as PDF.</source>
        <translation>Den Bericht als PDF schreiben.</translation>
    </message>
    <message>
        <source>A range needs both --from and --to.</source>
        <translation>Ein Zeitraum braucht --from und --to.</translation>
    </message>
    <message>
        <source>“%1” is not an ISO 8601 date.</source>
        <translation>“%1” ist kein Datum nach ISO 8601.</translation>
    </message>
    <message>
        <source>The report could not be written to “%1”.</source>
        <translation>Der Bericht konnte nicht nach “%1” geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>ReportCommands</name>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Hint!</source>
        <translation>Hinweis!</translation>
    </message>
    <message>
        <source>The report is bound to the arranged invoices in Tabo&apos;s main window. This means you can, for example, search for a client and therefore see the report just for this single client or you can pre-filter all your invoices to see a report only for overdue invoices.</source>
        <translation>Der Bericht ist an die geordneten Rechnungen im Hauptfenster von Tabo gebunden. So können Sie zum Beispiel nach einem Kunden suchen und den Bericht nur für diesen Kunden sehen, oder alle Rechnungen vorfiltern, um einen Bericht nur über überfällige Rechnungen zu sehen.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Ooops!</source>
        <translation>Hoppla!</translation>
    </message>
    <message>
        <source>Something went really wrong while creating the report.</source>
        <translation>Beim Erstellen des Berichts ist etwas gründlich schiefgegangen.</translation>
    </message>
    <message>
        <source>Save Report as PDF</source>
        <translation>Bericht als PDF speichern</translation>
    </message>
</context>
<context>
    <name>RestoreCommand</name>
    <message>
        <source>Unknown backup “%1”.</source>
        <translation>Unbekannte Sicherung “%1”.</translation>
    </message>
    <message>
        <source>Missing FILE.</source>
        <translation>DATEI fehlt.</translation>
    </message>
    <message>
        <source>The automatic backup has its own place.</source>
        <translation>Die automatische Sicherung hat ihren eigenen Ort.</translation>
    </message>
    <message>
        <source>Nothing was restored from “%1”.</source>
        <translation>Aus “%1” wurde nichts wiederhergestellt.</translation>
    </message>
    <message>
        <source>Warning!</source>
        <translation>Warnung!</translation>
    </message>
    <message>
        <source>You are about to restore your Tabo invoices from a backup. This will irretrievably replace any existing invoices. Do you really want to do that?</source>
        <translation>Sie sind dabei, Ihre Tabo-Rechnungen aus einer Sicherung wiederherzustellen. Dabei werden alle vorhandenen Rechnungen unwiderruflich ersetzt. Möchten Sie das wirklich?</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>Wiederherstellen…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Nothing was restored from the automatic backup.</source>
        <translation>Aus der automatischen Sicherung wurde nichts wiederhergestellt.</translation>
    </message>
    <message>
        <source>Replace the whole database by a .tabo2db backup, the shown documents or the catalogue by their backup, or the shown documents by the automatic backup; needs --yes.</source>
        <translation>Ersetzt die ganze Datenbank durch eine .tabo2db-Sicherung, die angezeigten Dokumente oder den Katalog durch ihre Sicherung, oder die angezeigten Dokumente durch die automatische Sicherung; braucht --yes.</translation>
    </message>
</context>
<context>
    <name>SampleDocument</name>
    <message>
        <source>Mara Lindqvist
Orchard Lane 7
Millbrook CA
United States</source>
        <translation>Mara Lindqvist
Obstgartenweg 7
12345 Mühlbach
Deutschland</translation>
    </message>
    <message>
        <source>Dear Mara Lindqvist</source>
        <translation>Sehr geehrte Frau Lindqvist</translation>
    </message>
    <message>
        <source>A Lot of Things</source>
        <translation>Allerlei Dinge</translation>
    </message>
</context>
<context>
    <name>ScheduleTable</name>
    <message>
        <source>The repeated invoices could not be read or written: %1</source>
        <translation>Die wiederkehrenden Rechnungen konnten nicht gelesen oder geschrieben werden: %1</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>The database could not be opened.</source>
        <translation>Die Datenbank konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>No document with ID or number “%1”.</source>
        <translation>Kein Dokument mit der ID oder Nummer “%1”.</translation>
    </message>
</context>
<context>
    <name>SetCommand</name>
    <message>
        <source>Set one attribute of a document (dates ISO 8601, booleans true/false/1/0, numbers in C notation or NaN). Totals are not recalculated.</source>
        <translation>Setzt ein Attribut eines Dokuments (Daten in ISO 8601, Wahrheitswerte true/false/1/0, Zahlen in C-Schreibweise oder NaN). Summen werden nicht neu berechnet.</translation>
    </message>
    <message>
        <source>A document&apos;s uniqueID cannot be changed: reminders, the window and every command find the document by it.</source>
        <translation>Die uniqueID eines Dokuments kann nicht geändert werden: Erinnerungen, das Fenster und jeder Befehl finden das Dokument über sie.</translation>
    </message>
    <message>
        <source>“%1” is no kind: 0 is a quote, 1 an invoice.</source>
        <translation>“%1” ist keine Art: 0 ist ein Angebot, 1 eine Rechnung.</translation>
    </message>
    <message>
        <source>“%1” is no status: 0 created, 1 sent, 2 overdue, 3 paid, 4 partly paid.</source>
        <translation>“%1” ist kein Status: 0 erstellt, 1 gesendet, 2 überfällig, 3 bezahlt, 4 teilweise bezahlt.</translation>
    </message>
</context>
<context>
    <name>ShippingCommand</name>
    <message>
        <source>Edit the shipping line (keys: </source>
        <translation>Versandzeile bearbeiten (Tasten: </translation>
    </message>
    <message>
        <source>); keys not given keep their values. The line is remembered for later unless one with the same title and amount is.</source>
        <translation>); nicht angegebene Schlüssel behalten ihre Werte. Die Zeile wird für später gemerkt, außer es gibt schon eine mit demselben Titel und Betrag.</translation>
    </message>
</context>
<context>
    <name>ShowCommand</name>
    <message>
        <source>Print a document with its lines.</source>
        <translation>Gibt ein Dokument mit seinen Zeilen aus.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>JSON ausgeben.</translation>
    </message>
</context>
<context>
    <name>Statement</name>
    <message>
        <source>Entry %1</source>
        <translation>Buchung %1</translation>
    </message>
    <message>
        <source>%1 has no booking date.</source>
        <translation>%1 hat kein Buchungsdatum.</translation>
    </message>
    <message>
        <source>%1 is booked on %2, a day still to come.</source>
        <translation>%1 ist am %2 gebucht, einem Tag, der noch kommt.</translation>
    </message>
    <message>
        <source>%1 has no amount above zero.</source>
        <translation>%1 hat keinen Betrag über null.</translation>
    </message>
    <message>
        <source>%1 is in “%2”, which is no currency code.</source>
        <translation>%1 lautet auf “%2”, was kein Währungscode ist.</translation>
    </message>
    <message>
        <source>This is not a bank statement: its namespace is “%1”, not CAMT.053 or CAMT.054 (versions 001.02 to 001.08).</source>
        <translation>Dies ist kein Kontoauszug: Sein Namensraum ist “%1”, nicht CAMT.053 oder CAMT.054 (Versionen 001.02 bis 001.08).</translation>
    </message>
    <message>
        <source>The statement holds no account report.</source>
        <translation>Der Auszug enthält keinen Kontobericht.</translation>
    </message>
    <message>
        <source>This is not an MT940 statement: it does not begin with a “:20:” field.</source>
        <translation>Dies ist kein MT940-Auszug: Er beginnt nicht mit einem Feld “:20:”.</translation>
    </message>
    <message>
        <source>Entry %1 of the MT940 statement cannot be read: “%2”.</source>
        <translation>Buchung %1 des MT940-Auszugs kann nicht gelesen werden: “%2”.</translation>
    </message>
    <message>
        <source>The file is larger than any bank statement (%1 MB), so it is not read.</source>
        <translation>Die Datei ist größer als jeder Kontoauszug (%1 MB), daher wird sie nicht gelesen.</translation>
    </message>
    <message>
        <source>The file declares a DTD; bank statements never do, so it is not read.</source>
        <translation>Die Datei deklariert eine DTD; Kontoauszüge tun das nie, daher wird sie nicht gelesen.</translation>
    </message>
    <message>
        <source>The file nests its elements more deeply than any bank statement does.</source>
        <translation>Die Datei verschachtelt ihre Elemente tiefer als jeder Kontoauszug.</translation>
    </message>
    <message>
        <source>The file “%1” could not be read: %2</source>
        <translation>Die Datei “%1” konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The columns of this CSV file are not recognised: %1. Say once which column holds the date, the amount, the payer, the IBAN and the text; Tabo remembers it for files laid out like this one.</source>
        <translation>Die Spalten dieser CSV-Datei werden nicht erkannt: %1. Sagen Sie einmal, welche Spalte das Datum, den Betrag, den Zahler, die IBAN und den Text enthält; Tabo merkt es sich für gleich aufgebaute Dateien.</translation>
    </message>
    <message>
        <source>This is not a bank statement Tabo reads (CAMT.053, CAMT.054, MT940 or CSV).</source>
        <translation>Dies ist kein Kontoauszug, den Tabo liest (CAMT.053, CAMT.054, MT940 oder CSV).</translation>
    </message>
</context>
<context>
    <name>Store</name>
    <message>
        <source>Restore your last complete backup (File ▸ Restore Database, or: tabo-cli restore database FILE --yes), or move the file aside to start a new database and restore the automatic backup of your documents (tabo-cli restore auto --yes).</source>
        <translation>Stellen Sie Ihre letzte vollständige Sicherung wieder her (Datei ▸ Datenbank wiederherstellen oder: tabo-cli restore database DATEI --yes), oder legen Sie die Datei beiseite, um eine neue Datenbank zu beginnen, und stellen Sie die automatische Sicherung Ihrer Dokumente wieder her (tabo-cli restore auto --yes).</translation>
    </message>
    <message>
        <source>Quit Tabo and keep the file for now. </source>
        <translation>Tabo beenden und die Datei vorerst behalten. </translation>
    </message>
    <message>
        <source>The database “%1” is not a file.</source>
        <translation>Die Datenbank “%1” ist keine Datei.</translation>
    </message>
    <message>
        <source>The file “%1” is not a Tabo database.</source>
        <translation>Die Datei “%1” ist keine Tabo-Datenbank.</translation>
    </message>
    <message>
        <source>It has been left as it is.</source>
        <translation>Sie wurde so belassen, wie sie ist.</translation>
    </message>
    <message>
        <source>The database file “%1” is empty (0 bytes).</source>
        <translation>Die Datenbankdatei “%1” ist leer (0 Bytes).</translation>
    </message>
    <message>
        <source>It has been left as it is. </source>
        <translation>Sie wurde so belassen, wie sie ist. </translation>
    </message>
    <message>
        <source>The database “%1” could not be opened.</source>
        <translation>Die Datenbank “%1” konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The database “%1” could not be read.</source>
        <translation>Die Datenbank “%1” konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file “%1” is an SQLite database of another program, not a Tabo database.</source>
        <translation>Die Datei “%1” ist eine SQLite-Datenbank eines anderen Programms, keine Tabo-Datenbank.</translation>
    </message>
    <message>
        <source>The database “%1” was written by a newer version of Tabo.</source>
        <translation>Die Datenbank “%1” wurde von einer neueren Version von Tabo geschrieben.</translation>
    </message>
    <message>
        <source>The database “%1” is damaged: its document table is missing.</source>
        <translation>Die Datenbank “%1” ist beschädigt: Ihre Dokumenttabelle fehlt.</translation>
    </message>
    <message>
        <source>The database “%1” could not be updated.</source>
        <translation>Die Datenbank “%1” konnte nicht aktualisiert werden.</translation>
    </message>
    <message>
        <source>The database could not be read.</source>
        <translation>Die Datenbank konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The database could not be replaced.</source>
        <translation>Die Datenbank konnte nicht ersetzt werden.</translation>
    </message>
    <message>
        <source>No database is open.</source>
        <translation>Es ist keine Datenbank geöffnet.</translation>
    </message>
    <message>
        <source>The backup uses another page size than the database.</source>
        <translation>Die Sicherung verwendet eine andere Seitengröße als die Datenbank.</translation>
    </message>
    <message>
        <source>The database file “%1” is damaged; nothing more is written to it.</source>
        <translation>Die Datenbankdatei “%1” ist beschädigt; es wird nichts mehr hineingeschrieben.</translation>
    </message>
    <message>
        <source>Another program (another Tabo window or tabo-cli) has kept the database busy for 10 seconds. Your changes are still here; try again in a moment.</source>
        <translation>Ein anderes Programm (ein anderes Tabo-Fenster oder tabo-cli) hat die Datenbank 10 Sekunden lang belegt. Ihre Änderungen sind noch da; versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>Please use that version; the file has been left as it is.</source>
        <translation>Bitte verwenden Sie jene Version; die Datei wurde so belassen, wie sie ist.</translation>
    </message>
</context>
<context>
    <name>StoreFile</name>
    <message>
        <source>“%1” could not be renamed to “%2”: %3.</source>
        <translation>“%1” konnte nicht in “%2” umbenannt werden: %3.</translation>
    </message>
    <message>
        <source>Unable to move temporary store: %1</source>
        <translation>Temporärer Speicher konnte nicht verschoben werden: %1</translation>
    </message>
    <message>
        <source>It does not exist or is not a file.</source>
        <translation>Sie existiert nicht oder ist keine Datei.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Sie ist leer.</translation>
    </message>
    <message>
        <source>It is not a database file.</source>
        <translation>Sie ist keine Datenbankdatei.</translation>
    </message>
    <message>
        <source>It is damaged or incomplete (%1).</source>
        <translation>Sie ist beschädigt oder unvollständig (%1).</translation>
    </message>
    <message>
        <source>It is a database of another program.</source>
        <translation>Sie ist eine Datenbank eines anderen Programms.</translation>
    </message>
    <message>
        <source>It holds no Tabo data.</source>
        <translation>Sie enthält keine Tabo-Daten.</translation>
    </message>
    <message>
        <source>Its log could not be written back.</source>
        <translation>Ihr Protokoll konnte nicht zurückgeschrieben werden.</translation>
    </message>
    <message>
        <source>It could not be read: %1.</source>
        <translation>Sie konnte nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>“%1” could not be written: %2.</source>
        <translation>“%1” konnte nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>Unable to add new store: %1</source>
        <translation>Neuer Speicher konnte nicht hinzugefügt werden: %1</translation>
    </message>
    <message>
        <source>The restored database could not be opened.</source>
        <translation>Die wiederhergestellte Datenbank konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The restored database is missing.</source>
        <translation>Die wiederhergestellte Datenbank fehlt.</translation>
    </message>
    <message>
        <source>An interrupted restore of “%1” is undone: %2</source>
        <translation>Eine unterbrochene Wiederherstellung von “%1” wurde rückgängig gemacht: %2</translation>
    </message>
    <message>
        <source>It is missing or empty.</source>
        <translation>Sie fehlt oder ist leer.</translation>
    </message>
    <message>
        <source>The interrupted move of the database from “%1” cannot be finished: %2</source>
        <translation>Die unterbrochene Verschiebung der Datenbank von “%1” kann nicht abgeschlossen werden: %2</translation>
    </message>
    <message>
        <source>Finished the interrupted move of the database from “%1” to “%2”.</source>
        <translation>Die unterbrochene Verschiebung der Datenbank von “%1” nach “%2” wurde abgeschlossen.</translation>
    </message>
    <message>
        <source>Removed “%1”, left by an interrupted copy.</source>
        <translation>“%1” entfernt, übrig von einer unterbrochenen Kopie.</translation>
    </message>
    <message>
        <source>“%1” could not be written: no free name for a working copy beside it.</source>
        <translation>“%1” konnte nicht geschrieben werden: kein freier Name für eine Arbeitskopie daneben.</translation>
    </message>
    <message>
        <source>Unable to add migratePersistentStore: %1</source>
        <translation>Speicher konnte nicht migriert werden: %1</translation>
    </message>
    <message>
        <source>Unable to acopyItemAtURL: %1</source>
        <translation>Kopieren nicht möglich: %1</translation>
    </message>
    <message>
        <source>An interrupted restore of “%1” is complete; removing the previous database.</source>
        <translation>Eine unterbrochene Wiederherstellung von “%1” ist abgeschlossen; die vorherige Datenbank wird entfernt.</translation>
    </message>
</context>
<context>
    <name>StoreJournal</name>
    <message>
        <source>The database could not be read.</source>
        <translation>Die Datenbank konnte nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>StoreRecords</name>
    <message>
        <source>The database could not be read.</source>
        <translation>Die Datenbank konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The lines of a document could not be read.</source>
        <translation>Die Zeilen eines Dokuments konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>A record could not be deleted.</source>
        <translation>Ein Datensatz konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>A record could not be written.</source>
        <translation>Ein Datensatz konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The changes could not be saved.</source>
        <translation>Die Änderungen konnten nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Failed to initialize the store</source>
        <translation>Der Speicher konnte nicht eingerichtet werden</translation>
    </message>
    <message>
        <source>There was an error building up the data file.</source>
        <translation>Beim Aufbau der Datendatei ist ein Fehler aufgetreten.</translation>
    </message>
    <message>
        <source>Another program changed the same records after they were read here.</source>
        <translation>Ein anderes Programm hat dieselben Datensätze geändert, nachdem sie hier gelesen wurden.</translation>
    </message>
    <message>
        <source>No database is open.</source>
        <translation>Es ist keine Datenbank geöffnet.</translation>
    </message>
    <message>
        <source>The database could not be written.</source>
        <translation>Die Datenbank konnte nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>TemplateCommand</name>
    <message>
        <source>Groups to take over.</source>
        <translation>Zu übernehmende Gruppen.</translation>
    </message>
    <message>
        <source>The template&apos;s description.</source>
        <translation>Die Beschreibung der Vorlage.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>JSON ausgeben.</translation>
    </message>
    <message>
        <source>A template needs a name.</source>
        <translation>Eine Vorlage braucht einen Namen.</translation>
    </message>
    <message>
        <source>A template named “%1” exists already.</source>
        <translation>Eine Vorlage namens “%1” gibt es bereits.</translation>
    </message>
    <message>
        <source>No template named “%1”.</source>
        <translation>Keine Vorlage namens “%1”.</translation>
    </message>
    <message>
        <source>Save a document as a named template (--include picks the groups for this save; otherwise the preferences do), fill a document from one, list or delete them.</source>
        <translation>Speichert ein Dokument als benannte Vorlage (--include wählt die Gruppen für dieses Speichern, sonst die Einstellungen), füllt ein Dokument aus einer, listet oder löscht sie.</translation>
    </message>
    <message>
        <source>--include and --notes belong to “template save”.</source>
        <translation>--include und --notes gehören zu “template save”.</translation>
    </message>
    <message>
        <source>--json belongs to “template list”.</source>
        <translation>--json gehört zu “template list”.</translation>
    </message>
</context>
<context>
    <name>TemplateCommands</name>
    <message>
        <source>Error!</source>
        <translation>Fehler!</translation>
    </message>
    <message>
        <source>The selected invoice is marked as already sent. If you really need to make changes, please set its status back to &apos;Created&apos; first. Then you will also be able to resend the modified invoice.</source>
        <translation>Die gewählte Rechnung ist bereits als gesendet markiert. Wenn Sie wirklich etwas ändern müssen, setzen Sie ihren Status bitte zuerst auf “Erstellt” zurück. Dann können Sie die geänderte Rechnung auch erneut senden.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Vorlage</translation>
    </message>
</context>
<context>
    <name>XmlPlist</name>
    <message>
        <source>cannot write a value of type %1</source>
        <translation>ein Wert vom Typ %1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>date out of range</source>
        <translation>Datum außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>unknown XML element</source>
        <translation>unbekanntes XML-Element</translation>
    </message>
    <message>
        <source>not a valid XML property list</source>
        <translation>keine gültige XML-Property-List</translation>
    </message>
</context>
<context>
    <name>XmlTree</name>
    <message>
        <source>The file is not well-formed XML (line %1: %2).</source>
        <translation>Die Datei ist kein wohlgeformtes XML (Zeile %1: %2).</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Usage: tabo-cli COMMAND [ARGUMENTS]</source>
        <translation>Verwendung: tabo-cli BEFEHL [ARGUMENTE]</translation>
    </message>
    <message>
        <source>Missing command. Run “tabo-cli --help” for usage.</source>
        <translation>Befehl fehlt. “tabo-cli --help” zeigt die Verwendung.</translation>
    </message>
    <message>
        <source>Unknown option “%1”.</source>
        <translation>Unbekannte Option “%1”.</translation>
    </message>
    <message>
        <source>Unknown command “%1”.</source>
        <translation>Unbekannter Befehl “%1”.</translation>
    </message>
    <message>
        <source> Run “tabo-cli --help” for usage.</source>
        <translation> “tabo-cli --help” zeigt die Verwendung.</translation>
    </message>
    <message>
        <source>Invoices and quotes for freelancers and small businesses.</source>
        <translation>Rechnungen und Angebote für Selbstständige und kleine Unternehmen.</translation>
    </message>
    <message>
        <source>Start with the list filtered to the invoice with this unique ID.</source>
        <translation>Mit der Liste beginnen, gefiltert auf die Rechnung mit dieser eindeutigen ID.</translation>
    </message>
    <message>
        <source>Start with a new invoice.</source>
        <translation>Mit einer neuen Rechnung beginnen.</translation>
    </message>
    <message>
        <source>Start with a new quote.</source>
        <translation>Mit einem neuen Angebot beginnen.</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Fehler!</translation>
    </message>
    <message>
        <source>Restore Last Good Settings</source>
        <translation>Letzte gute Einstellungen wiederherstellen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Befehle:</translation>
    </message>
    <message>
        <source>Documents, designs, backups or e-invoices to open.</source>
        <translation>Zu öffnende Dokumente, Designs, Sicherungen oder E-Rechnungen.</translation>
    </message>
</context>
<context>
    <name>tabo::AboutDialog</name>
    <message>
        <source>About Tabo</source>
        <translation>Über Tabo</translation>
    </message>
    <message>
        <source>Tabo icon</source>
        <translation>Tabo-Symbol</translation>
    </message>
    <message>
        <source>Invoices and quotes for freelancers and small businesses.</source>
        <translation>Rechnungen und Angebote für Selbstständige und kleine Unternehmen.</translation>
    </message>
    <message>
        <source>Licence: proprietary; all rights reserved.</source>
        <translation>Lizenz: proprietär; alle Rechte vorbehalten.</translation>
    </message>
    <message>
        <source>Built with</source>
        <translation>Erstellt mit</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothek</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>Bibliotheken</translation>
    </message>
</context>
<context>
    <name>tabo::AccountingExportSheet</name>
    <message>
        <source>All except created</source>
        <translation>Alle außer erstellten</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Bezahlt</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>Überfällig</translation>
    </message>
    <message>
        <source>One summary line per invoice</source>
        <translation>Eine Übersichtszeile pro Rechnung</translation>
    </message>
    <message>
        <source>Every line</source>
        <translation>Jede Zeile</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Von:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Bis:</translation>
    </message>
    <message>
        <source>Invoices:</source>
        <translation>Rechnungen:</translation>
    </message>
    <message>
        <source>Lines:</source>
        <translation>Zeilen:</translation>
    </message>
    <message>
        <source>1 invoice will be sent.</source>
        <translation>1 Rechnung wird gesendet.</translation>
    </message>
    <message>
        <source>%1 invoices will be sent.</source>
        <translation>%1 Rechnungen werden gesendet.</translation>
    </message>
</context>
<context>
    <name>tabo::AddressPopover</name>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Kontakte</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Zuletzt</translation>
    </message>
    <message>
        <source>E-invoice</source>
        <translation>E-Rechnung</translation>
    </message>
    <message>
        <source>Generate</source>
        <translation>Erzeugen</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>Client number:</source>
        <translation>Kundennummer:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-Mail:</translation>
    </message>
    <message>
        <source>VAT ID:</source>
        <translation>USt-IdNr.:</translation>
    </message>
    <message>
        <source>Salutation:</source>
        <translation>Anrede:</translation>
    </message>
    <message>
        <source>First name:</source>
        <translation>Vorname:</translation>
    </message>
    <message>
        <source>Last name:</source>
        <translation>Nachname:</translation>
    </message>
    <message>
        <source>Use Address</source>
        <translation>Adresse verwenden</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Kunde</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Verwenden</translation>
    </message>
    <message>
        <source>Company or name:</source>
        <translation>Firma oder Name:</translation>
    </message>
    <message>
        <source>Street:</source>
        <translation>Straße:</translation>
    </message>
    <message>
        <source>Postcode:</source>
        <translation>PLZ:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ort:</translation>
    </message>
    <message>
        <source>Country code:</source>
        <translation>Ländercode:</translation>
    </message>
    <message>
        <source>Buyer reference:</source>
        <translation>Käuferreferenz:</translation>
    </message>
    <message>
        <source>E-invoice address:</source>
        <translation>E-Rechnungs-Adresse:</translation>
    </message>
    <message>
        <source>DE, FR, AT…</source>
        <translation>DE, FR, AT…</translation>
    </message>
    <message>
        <source>Leitweg-ID of a public authority</source>
        <translation>Leitweg-ID einer Behörde</translation>
    </message>
    <message>
        <source>e-mail or scheme:identifier</source>
        <translation>E-Mail oder Schema:Kennung</translation>
    </message>
    <message>
        <source>Choose vCard File</source>
        <translation>vCard-Datei wählen</translation>
    </message>
</context>
<context>
    <name>tabo::CatalogueWindow</name>
    <message>
        <source>Catalogue</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Search title, article number or unit</source>
        <translation>Titel, Artikelnummer oder Einheit suchen</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Steuer %1</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Preis</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Article number</source>
        <translation>Artikelnummer</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
</context>
<context>
    <name>tabo::ClientPage</name>
    <message>
        <source>Address…</source>
        <translation>Adresse…</translation>
    </message>
    <message>
        <source>Take the client from your contacts or the recent addresses</source>
        <translation>Kunden aus Ihren Kontakten oder den letzten Adressen übernehmen</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Salutation:</source>
        <translation>Anrede:</translation>
    </message>
    <message>
        <source>Client number:</source>
        <translation>Kundennummer:</translation>
    </message>
    <message>
        <source>VAT ID:</source>
        <translation>USt-IdNr.:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-Mail:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>Heading:</source>
        <translation>Überschrift:</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>Nummer:</translation>
    </message>
    <message>
        <source>Subject:</source>
        <translation>Betreff:</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
</context>
<context>
    <name>tabo::ContactsTab</name>
    <message>
        <source>No vCard file chosen yet.</source>
        <translation>Noch keine vCard-Datei gewählt.</translation>
    </message>
    <message>
        <source>Use Contact</source>
        <translation>Kontakt verwenden</translation>
    </message>
    <message>
        <source>Choose vCard File…</source>
        <translation>vCard-Datei wählen…</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Kontakte</translation>
    </message>
</context>
<context>
    <name>tabo::DatesPage</name>
    <message>
        <source>Dispatched on</source>
        <translation>Versandt am</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>Überfällig</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Bezahlt</translation>
    </message>
    <message>
        <source>Partly paid</source>
        <translation>Teilweise bezahlt</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Dispatch number:</source>
        <translation>Versandnummer:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Paid amount:</source>
        <translation>Bezahlter Betrag:</translation>
    </message>
    <message>
        <source>Valid until:</source>
        <translation>Gültig bis:</translation>
    </message>
    <message>
        <source>Due:</source>
        <translation>Fällig:</translation>
    </message>
</context>
<context>
    <name>tabo::DesignChoiceSheet</name>
    <message>
        <source>Choose Design</source>
        <translation>Design wählen</translation>
    </message>
    <message>
        <source>Choose the design your documents are printed with.</source>
        <translation>Wählen Sie das Design, mit dem Ihre Dokumente gedruckt werden.</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Ohne Titel</translation>
    </message>
    <message>
        <source>Designs</source>
        <translation>Designs</translation>
    </message>
</context>
<context>
    <name>tabo::DesignPane</name>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Make Default</source>
        <translation>Als Standard festlegen</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Stylesheet</source>
        <translation>Stylesheet</translation>
    </message>
    <message>
        <source>Documents are rendered with this design.</source>
        <translation>Dokumente werden mit diesem Design dargestellt.</translation>
    </message>
    <message>
        <source>The preview could not be shown.</source>
        <translation>Die Vorschau konnte nicht gezeigt werden.</translation>
    </message>
    <message>
        <source>Design Preview</source>
        <translation>Design-Vorschau</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Drucken…</translation>
    </message>
    <message>
        <source>Designs</source>
        <translation>Designs</translation>
    </message>
</context>
<context>
    <name>tabo::DesignPreview</name>
    <message>
        <source>The page is empty.</source>
        <translation>Die Seite ist leer.</translation>
    </message>
    <message>
        <source>The row is empty.</source>
        <translation>Die Zeile ist leer.</translation>
    </message>
    <message>
        <source>Page, line %1: a comment is not closed (“--&gt;” missing).</source>
        <translation>Seite, Zeile %1: Ein Kommentar ist nicht geschlossen (“--&gt;” fehlt).</translation>
    </message>
    <message>
        <source>Page, line %1: a tag is not closed (“&gt;” missing).</source>
        <translation>Seite, Zeile %1: Ein Tag ist nicht geschlossen (“&gt;” fehlt).</translation>
    </message>
    <message>
        <source>Row, line %1: a comment is not closed (“--&gt;” missing).</source>
        <translation>Zeile, Zeile %1: Ein Kommentar ist nicht geschlossen (“--&gt;” fehlt).</translation>
    </message>
    <message>
        <source>Row, line %1: a tag is not closed (“&gt;” missing).</source>
        <translation>Zeile, Zeile %1: Ein Tag ist nicht geschlossen (“&gt;” fehlt).</translation>
    </message>
    <message>
        <source>Stylesheet, line %1: a comment is not closed (“*/” missing).</source>
        <translation>Stylesheet, Zeile %1: Ein Kommentar ist nicht geschlossen (“*/” fehlt).</translation>
    </message>
    <message>
        <source>Stylesheet: a “{” and a “}” do not pair up.</source>
        <translation>Stylesheet: Ein “{” und ein “}” passen nicht zusammen.</translation>
    </message>
    <message>
        <source>The page could not be rendered.</source>
        <translation>Die Seite konnte nicht dargestellt werden.</translation>
    </message>
</context>
<context>
    <name>tabo::DiscountPopover</name>
    <message>
        <source>Grant a discount on this document</source>
        <translation>Einen Rabatt auf dieses Dokument gewähren</translation>
    </message>
    <message>
        <source>Fixed amount:</source>
        <translation>Fester Betrag:</translation>
    </message>
    <message>
        <source>Percentage:</source>
        <translation>Prozentsatz:</translation>
    </message>
    <message>
        <source>Show a second line:</source>
        <translation>Zweite Zeile zeigen:</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The discount could not be changed.</source>
        <translation>Der Rabatt konnte nicht geändert werden.</translation>
    </message>
    <message>
        <source>Second line</source>
        <translation>Zweite Zeile</translation>
    </message>
</context>
<context>
    <name>tabo::DocumentActions</name>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Convert to Invoice</source>
        <translation>In Rechnung umwandeln</translation>
    </message>
    <message>
        <source>Cancel Invoice…</source>
        <translation>Rechnung stornieren…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Add Item…</source>
        <translation>Artikel hinzufügen…</translation>
    </message>
    <message>
        <source>Delete Item</source>
        <translation>Artikel löschen</translation>
    </message>
    <message>
        <source>A copy of the selected document with a new number</source>
        <translation>Eine Kopie des gewählten Dokuments mit neuer Nummer</translation>
    </message>
    <message>
        <source>Turn the selected quote into an invoice</source>
        <translation>Das gewählte Angebot in eine Rechnung umwandeln</translation>
    </message>
    <message>
        <source>A credit note that takes back a sent or paid invoice</source>
        <translation>Eine Gutschrift, die eine gesendete oder bezahlte Rechnung zurücknimmt</translation>
    </message>
    <message>
        <source>Delete Quote</source>
        <translation>Angebot löschen</translation>
    </message>
    <message>
        <source>Delete Invoice</source>
        <translation>Rechnung löschen</translation>
    </message>
</context>
<context>
    <name>tabo::DocumentEditor</name>
    <message>
        <source>Select a document in the list, or create one.</source>
        <translation>Wählen Sie ein Dokument in der Liste oder erstellen Sie eines.</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Kunde</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Dates and status</source>
        <translation>Daten und Status</translation>
    </message>
</context>
<context>
    <name>tabo::DocumentHeader</name>
    <message>
        <source>Invoice</source>
        <translation>Rechnung</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Angebot</translation>
    </message>
    <message>
        <source>No client yet</source>
        <translation>Noch kein Kunde</translation>
    </message>
</context>
<context>
    <name>tabo::DocumentListPane</name>
    <message>
        <source>No documents yet — choose New Invoice to write your first.</source>
        <translation>Noch keine Dokumente – wählen Sie “Neue Rechnung”, um Ihre erste zu schreiben.</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
</context>
<context>
    <name>tabo::DocumentTableModel</name>
    <message>
        <source>Quote</source>
        <translation>Angebot</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>Überfällig</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Bezahlt</translation>
    </message>
    <message>
        <source>Partly paid</source>
        <translation>Teilweise bezahlt</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Kunde</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Betreff</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>tabo::ExportSheet</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Speichern…</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>tabo::FieldBinder</name>
    <message>
        <source>Please enter a number, for example 12.50.</source>
        <translation>Bitte geben Sie eine Zahl ein, zum Beispiel 12,50.</translation>
    </message>
</context>
<context>
    <name>tabo::FileMenu</name>
    <message>
        <source>Export Document…</source>
        <translation>Dokument exportieren…</translation>
    </message>
    <message>
        <source>Export Shown Documents as XML…</source>
        <translation>Angezeigte Dokumente als XML exportieren…</translation>
    </message>
    <message>
        <source>Export All Documents as XML…</source>
        <translation>Alle Dokumente als XML exportieren…</translation>
    </message>
    <message>
        <source>Export Invoices Dump…</source>
        <translation>Rechnungs-Dump exportieren…</translation>
    </message>
    <message>
        <source>Import Document…</source>
        <translation>Dokument importieren…</translation>
    </message>
    <message>
        <source>Back Up Database…</source>
        <translation>Datenbank sichern…</translation>
    </message>
    <message>
        <source>Restore Database…</source>
        <translation>Datenbank wiederherstellen…</translation>
    </message>
    <message>
        <source>Back Up Documents…</source>
        <translation>Dokumente sichern…</translation>
    </message>
    <message>
        <source>Restore Documents…</source>
        <translation>Dokumente wiederherstellen…</translation>
    </message>
    <message>
        <source>Back Up Catalogue…</source>
        <translation>Katalog sichern…</translation>
    </message>
    <message>
        <source>Restore Catalogue…</source>
        <translation>Katalog wiederherstellen…</translation>
    </message>
    <message>
        <source>Restore Automatic Backup…</source>
        <translation>Automatische Sicherung wiederherstellen…</translation>
    </message>
    <message>
        <source>Send Invoices To Vorlux…</source>
        <translation>Rechnungen an Vorlux senden…</translation>
    </message>
    <message>
        <source>Send Invoices To quandrella…</source>
        <translation>Rechnungen an quandrella senden…</translation>
    </message>
    <message>
        <source>Open E-Invoice…</source>
        <translation>E-Rechnung öffnen…</translation>
    </message>
    <message>
        <source>Received E-Invoice</source>
        <translation>Empfangene E-Rechnung</translation>
    </message>
    <message>
        <source>Import Bank Statement…</source>
        <translation>Kontoauszug importieren…</translation>
    </message>
</context>
<context>
    <name>tabo::FilterButton</name>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>One Invoice</source>
        <translation>Eine Rechnung</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filter: %1</translation>
    </message>
    <message>
        <source>A filter is on — click to show all documents</source>
        <translation>Ein Filter ist aktiv – klicken, um alle Dokumente zu zeigen</translation>
    </message>
    <message>
        <source>Filter the documents</source>
        <translation>Dokumente filtern</translation>
    </message>
</context>
<context>
    <name>tabo::FilterPopover</name>
    <message>
        <source>All documents</source>
        <translation>Alle Dokumente</translation>
    </message>
    <message>
        <source>Sent and open</source>
        <translation>Gesendet und offen</translation>
    </message>
    <message>
        <source>Overdue and partly paid</source>
        <translation>Überfällig und teilweise bezahlt</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Bezahlt</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Angebote</translation>
    </message>
    <message>
        <source>Last 12 hours</source>
        <translation>Letzte 12 Stunden</translation>
    </message>
    <message>
        <source>Last 3.5 days</source>
        <translation>Letzte 3,5 Tage</translation>
    </message>
    <message>
        <source>Last 15.5 days</source>
        <translation>Letzte 15,5 Tage</translation>
    </message>
    <message>
        <source>Last 182.5 days</source>
        <translation>Letzte 182,5 Tage</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
</context>
<context>
    <name>tabo::FirstStartAssistant</name>
    <message>
        <source>Welcome to Tabo</source>
        <translation>Willkommen bei Tabo</translation>
    </message>
    <message>
        <source>Language of your documents</source>
        <translation>Sprache Ihrer Dokumente</translation>
    </message>
    <message>
        <source>Tabo fills in labels, texts, number patterns, taxes and paper size for the language you write your invoices in. You can change every one of them later.</source>
        <translation>Tabo füllt Bezeichnungen, Texte, Nummernmuster, Steuern und Papierformat für die Sprache aus, in der Sie Ihre Rechnungen schreiben. Sie können alles später ändern.</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Englisch</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Französisch</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spanisch</translation>
    </message>
    <message>
        <source>Documents in:</source>
        <translation>Dokumente in:</translation>
    </message>
    <message>
        <source>Calculate totals to the cent for each VAT rate</source>
        <translation>Summen je Steuersatz centgenau berechnen</translation>
    </message>
    <message>
        <source>Your company</source>
        <translation>Ihre Firma</translation>
    </message>
    <message>
        <source>These details head every document you send.</source>
        <translation>Diese Angaben stehen über jedem Dokument, das Sie senden.</translation>
    </message>
    <message>
        <source>Company name:</source>
        <translation>Firmenname:</translation>
    </message>
    <message>
        <source>Slogan:</source>
        <translation>Slogan:</translation>
    </message>
    <message>
        <source>Street:</source>
        <translation>Straße:</translation>
    </message>
    <message>
        <source>Postcode:</source>
        <translation>PLZ:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ort:</translation>
    </message>
    <message>
        <source>Country code:</source>
        <translation>Ländercode:</translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation>Telefon:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-Mail:</translation>
    </message>
    <message>
        <source>Taxes and bank</source>
        <translation>Steuern und Bank</translation>
    </message>
    <message>
        <source>Invoices must name your tax number or VAT ID, and your customers need your bank details to pay. They go into the footer of every document; leave out what you do not have.</source>
        <translation>Rechnungen müssen Ihre Steuernummer oder USt-IdNr. nennen, und Ihre Kunden brauchen Ihre Bankverbindung, um zu zahlen. Beides steht in der Fußzeile jedes Dokuments; lassen Sie weg, was Sie nicht haben.</translation>
    </message>
    <message>
        <source>VAT ID:</source>
        <translation>USt-IdNr.:</translation>
    </message>
    <message>
        <source>Tax number:</source>
        <translation>Steuernummer:</translation>
    </message>
    <message>
        <source>Bank:</source>
        <translation>Bank:</translation>
    </message>
    <message>
        <source>IBAN:</source>
        <translation>IBAN:</translation>
    </message>
    <message>
        <source>BIC:</source>
        <translation>BIC:</translation>
    </message>
    <message>
        <source>DE, FR, US…</source>
        <translation>DE, FR, US…</translation>
    </message>
</context>
<context>
    <name>tabo::ItemPopover</name>
    <message>
        <source>New Item</source>
        <translation>Neuer Artikel</translation>
    </message>
    <message>
        <source>Catalogue</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Code:</source>
        <translation>Code:</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation>Einheit:</translation>
    </message>
    <message>
        <source>Article number:</source>
        <translation>Artikelnummer:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Notiz:</translation>
    </message>
    <message>
        <source>Unit price:</source>
        <translation>Einzelpreis:</translation>
    </message>
    <message>
        <source>Quantity:</source>
        <translation>Menge:</translation>
    </message>
    <message>
        <source>Taxes:</source>
        <translation>Steuern:</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Article number</source>
        <translation>Artikelnummer</translation>
    </message>
    <message>
        <source>Unit price</source>
        <translation>Einzelpreis</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Verwenden</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Steuer %1</translation>
    </message>
    <message>
        <source>The item could not be added.</source>
        <translation>Der Artikel konnte nicht hinzugefügt werden.</translation>
    </message>
</context>
<context>
    <name>tabo::ItemTableModel</name>
    <message>
        <source>Item</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation>Einzelpreis</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Steuern</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
</context>
<context>
    <name>tabo::ItemsPage</name>
    <message>
        <source>Add Item…</source>
        <translation>Artikel hinzufügen…</translation>
    </message>
    <message>
        <source>Delete Item</source>
        <translation>Artikel löschen</translation>
    </message>
    <message>
        <source>Shipping…</source>
        <translation>Versand…</translation>
    </message>
    <message>
        <source>Discount…</source>
        <translation>Rabatt…</translation>
    </message>
    <message>
        <source>Templates…</source>
        <translation>Vorlagen…</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Artikel</translation>
    </message>
</context>
<context>
    <name>tabo::LetterSheet</name>
    <message>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>Conditions:</source>
        <translation>Bedingungen:</translation>
    </message>
    <message>
        <source>Miscellaneous:</source>
        <translation>Verschiedenes:</translation>
    </message>
    <message>
        <source>Footer:</source>
        <translation>Fußzeile:</translation>
    </message>
    <message>
        <source>Generate</source>
        <translation>Erzeugen</translation>
    </message>
    <message>
        <source>Payment Reminder</source>
        <translation>Zahlungserinnerung</translation>
    </message>
    <message>
        <source>Delivery Slip</source>
        <translation>Lieferschein</translation>
    </message>
</context>
<context>
    <name>tabo::LogoWell</name>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen…</translation>
    </message>
    <message>
        <source>Drop an image here</source>
        <translation>Bild hierher ziehen</translation>
    </message>
    <message>
        <source>The stored logo cannot be read</source>
        <translation>Das gespeicherte Logo kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>“%1” is larger than 10 MB; please use a smaller image.</source>
        <translation>“%1” ist größer als 10 MB; bitte verwenden Sie ein kleineres Bild.</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>“%1” kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>“%1” is not an image Tabo can read (PNG, JPEG, GIF, BMP or TIFF).</source>
        <translation>“%1” ist kein Bild, das Tabo lesen kann (PNG, JPEG, GIF, BMP oder TIFF).</translation>
    </message>
    <message>
        <source>Choose Logo Image</source>
        <translation>Logo-Bild wählen</translation>
    </message>
</context>
<context>
    <name>tabo::MainWindow</name>
    <message>
        <source>New Invoice</source>
        <translation>Neue Rechnung</translation>
    </message>
    <message>
        <source>New Quote</source>
        <translation>Neues Angebot</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Einstellungen…</translation>
    </message>
    <message>
        <source>&amp;Documents</source>
        <translation>&amp;Dokumente</translation>
    </message>
    <message>
        <source>&amp;Items</source>
        <translation>&amp;Artikel</translation>
    </message>
    <message>
        <source>&amp;Reports</source>
        <translation>&amp;Berichte</translation>
    </message>
    <message>
        <source>Report…</source>
        <translation>Bericht…</translation>
    </message>
    <message>
        <source>Print Account Book…</source>
        <translation>Kassenbuch drucken…</translation>
    </message>
    <message>
        <source>Catalogue…</source>
        <translation>Katalog…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Drucken…</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Als PDF speichern…</translation>
    </message>
    <message>
        <source>E-mail…</source>
        <translation>E-Mail…</translation>
    </message>
    <message>
        <source>Reminder…</source>
        <translation>Mahnung…</translation>
    </message>
    <message>
        <source>Delivery Slip…</source>
        <translation>Lieferschein…</translation>
    </message>
    <message>
        <source>Choose Design…</source>
        <translation>Design wählen…</translation>
    </message>
    <message>
        <source>&amp;Output</source>
        <translation>&amp;Ausgabe</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Search number, client, subject, amount</source>
        <translation>Nummer, Kunde, Betreff, Betrag suchen</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Remind Me…</source>
        <translation>Erinnern…</translation>
    </message>
    <message>
        <source>Schedule a desktop notification about this invoice</source>
        <translation>Eine Desktop-Benachrichtigung zu dieser Rechnung planen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>Benutzerhandbuch</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>About Tabo</source>
        <translation>Über Tabo</translation>
    </message>
    <message>
        <source>Repeat Invoice…</source>
        <translation>Rechnung wiederholen…</translation>
    </message>
</context>
<context>
    <name>tabo::NotificationSheet</name>
    <message>
        <source>Remind Me</source>
        <translation>Erinnern</translation>
    </message>
    <message>
        <source>A desktop notification reminds you of this invoice.</source>
        <translation>Eine Desktop-Benachrichtigung erinnert Sie an diese Rechnung.</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>Subtitle:</source>
        <translation>Untertitel:</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Text:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Planen</translation>
    </message>
</context>
<context>
    <name>tabo::PageRenderer</name>
    <message>
        <source>FAIL! YOUR SELECTED DESIGN IS EITHER BROKEN, CORRUPTED, OR DAMAGED! YOU NEED TO FIX THIS!</source>
        <translation>FEHLER! IHR GEWÄHLTES DESIGN IST DEFEKT, BESCHÄDIGT ODER UNBRAUCHBAR! SIE MÜSSEN ES REPARIEREN!</translation>
    </message>
</context>
<context>
    <name>tabo::PaymentReviewWindow</name>
    <message>
        <source>Sure</source>
        <translation>Sicher</translation>
    </message>
    <message>
        <source>Proposed</source>
        <translation>Vorgeschlagen</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Taken in before</source>
        <translation>Schon übernommen</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>Keine Zuordnung</translation>
    </message>
    <message>
        <source>Bank Statement</source>
        <translation>Kontoauszug</translation>
    </message>
    <message>
        <source>Credits on the statement</source>
        <translation>Gutschriften auf dem Kontoauszug</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Booked</source>
        <translation>Gebucht</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>Payer</source>
        <translation>Zahler</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Rechnung</translation>
    </message>
    <message>
        <source>Match</source>
        <translation>Zuordnung</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>Warum</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>%1 of %2 credits (%3) will be taken in; the rest is skipped.</source>
        <translation>%1 von %2 Gutschriften (%3) werden übernommen; der Rest wird übersprungen.</translation>
    </message>
    <message>
        <source>The bank statement cannot be read</source>
        <translation>Der Kontoauszug kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Columns of the Statement</source>
        <translation>Spalten des Kontoauszugs</translation>
    </message>
    <message>
        <source>Booking date:</source>
        <translation>Buchungsdatum:</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>Betrag:</translation>
    </message>
    <message>
        <source>Payer:</source>
        <translation>Zahler:</translation>
    </message>
    <message>
        <source>IBAN:</source>
        <translation>IBAN:</translation>
    </message>
    <message>
        <source>Remittance text:</source>
        <translation>Verwendungszweck:</translation>
    </message>
    <message>
        <source>Currency:</source>
        <translation>Währung:</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>Tabo does not know the headings of this file. Say once which column holds what; files laid out like it are read so from now on.</source>
        <translation>Tabo kennt die Überschriften dieser Datei nicht. Sagen Sie einmal, welche Spalte was enthält; gleich aufgebaute Dateien werden von nun an so gelesen.</translation>
    </message>
</context>
<context>
    <name>tabo::PdfPane</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>tabo::PrefsBinder</name>
    <message>
        <source>The stored value stays.</source>
        <translation>Der gespeicherte Wert bleibt.</translation>
    </message>
    <message>
        <source>%1 must be a whole number.</source>
        <translation>%1 muss eine ganze Zahl sein.</translation>
    </message>
    <message>
        <source>%1 cannot be below %2.</source>
        <translation>%1 darf nicht kleiner als %2 sein.</translation>
    </message>
    <message>
        <source>%1 cannot be above %2.</source>
        <translation>%1 darf nicht größer als %2 sein.</translation>
    </message>
    <message>
        <source>The rate must be a number, such as 19 or 7.5.</source>
        <translation>Der Satz muss eine Zahl sein, etwa 19 oder 7,5.</translation>
    </message>
    <message>
        <source>The rate cannot be below 0 %.</source>
        <translation>Der Satz darf nicht unter 0 % liegen.</translation>
    </message>
    <message>
        <source>The rate cannot be above 1000 %.</source>
        <translation>Der Satz darf nicht über 1000 % liegen.</translation>
    </message>
</context>
<context>
    <name>tabo::PreviewWindow</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Drucken…</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Als PDF speichern…</translation>
    </message>
    <message>
        <source>E-mail…</source>
        <translation>E-Mail…</translation>
    </message>
    <message>
        <source>Reminder…</source>
        <translation>Mahnung…</translation>
    </message>
    <message>
        <source>Delivery Slip…</source>
        <translation>Lieferschein…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Preparing the preview…</source>
        <translation>Vorschau wird vorbereitet…</translation>
    </message>
    <message>
        <source>No design available</source>
        <translation>Kein Design verfügbar</translation>
    </message>
    <message>
        <source>A document is printed through a design, and the design library is empty.

Add a design or import a design file in the Design pane of the preferences, or reinstall the built-in designs here.</source>
        <translation>Ein Dokument wird über ein Design gedruckt, und die Design-Bibliothek ist leer.

Fügen Sie im Bereich Design der Einstellungen ein Design hinzu oder importieren Sie eine Design-Datei, oder installieren Sie hier die mitgelieferten Designs neu.</translation>
    </message>
    <message>
        <source>Reinstall Built-in Designs</source>
        <translation>Mitgelieferte Designs neu installieren</translation>
    </message>
</context>
<context>
    <name>tabo::QVPreferencePanel</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Company name:</source>
        <translation>Firmenname:</translation>
    </message>
    <message>
        <source>Slogan:</source>
        <translation>Slogan:</translation>
    </message>
    <message>
        <source>Contact:</source>
        <translation>Kontakt:</translation>
    </message>
    <message>
        <source>Letterbox line:</source>
        <translation>Absenderzeile:</translation>
    </message>
    <message>
        <source>The sender line above the address, read through a window envelope.</source>
        <translation>Die Absenderzeile über der Adresse, lesbar im Fensterumschlag.</translation>
    </message>
    <message>
        <source>Logo:</source>
        <translation>Logo:</translation>
    </message>
    <message>
        <source>Currency sign:</source>
        <translation>Währungszeichen:</translation>
    </message>
    <message>
        <source>Address, taxes and bank (for footers and e-invoices)</source>
        <translation>Adresse, Steuern und Bank (für Fußzeilen und E-Rechnungen)</translation>
    </message>
    <message>
        <source>Street:</source>
        <translation>Straße:</translation>
    </message>
    <message>
        <source>Postcode:</source>
        <translation>PLZ:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ort:</translation>
    </message>
    <message>
        <source>Country code:</source>
        <translation>Ländercode:</translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation>Telefon:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-Mail:</translation>
    </message>
    <message>
        <source>VAT ID:</source>
        <translation>USt-IdNr.:</translation>
    </message>
    <message>
        <source>Tax number:</source>
        <translation>Steuernummer:</translation>
    </message>
    <message>
        <source>Bank:</source>
        <translation>Bank:</translation>
    </message>
    <message>
        <source>IBAN:</source>
        <translation>IBAN:</translation>
    </message>
    <message>
        <source>BIC:</source>
        <translation>BIC:</translation>
    </message>
    <message>
        <source>Contact person:</source>
        <translation>Ansprechpartner:</translation>
    </message>
    <message>
        <source>E-invoice address:</source>
        <translation>E-Rechnungs-Adresse:</translation>
    </message>
    <message>
        <source>Currency code:</source>
        <translation>Währungscode:</translation>
    </message>
    <message>
        <source>Compose Footers…</source>
        <translation>Fußzeilen zusammenstellen…</translation>
    </message>
    <message>
        <source>Pattern:</source>
        <translation>Muster:</translation>
    </message>
    <message>
        <source>Counter:</source>
        <translation>Zähler:</translation>
    </message>
    <message>
        <source>The counter</source>
        <translation>Der Zähler</translation>
    </message>
    <message>
        <source>New documents get a number</source>
        <translation>Neue Dokumente erhalten eine Nummer</translation>
    </message>
    <message>
        <source>Days:</source>
        <translation>Tage:</translation>
    </message>
    <message>
        <source>The number of days</source>
        <translation>Die Anzahl der Tage</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Rechnungen</translation>
    </message>
    <message>
        <source>New invoices get a due date</source>
        <translation>Neue Rechnungen erhalten ein Fälligkeitsdatum</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Angebote</translation>
    </message>
    <message>
        <source>New quotes get a validity date</source>
        <translation>Neue Angebote erhalten ein Gültigkeitsdatum</translation>
    </message>
    <message>
        <source>Patterns take %COUNT%, %YEAR%, %MONTH% and %DAY%.</source>
        <translation>Muster verstehen %COUNT%, %YEAR%, %MONTH% und %DAY%.</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>Printing or mailing marks an invoice as sent</source>
        <translation>Drucken oder Versenden markiert eine Rechnung als gesendet</translation>
    </message>
    <message>
        <source>Print:</source>
        <translation>Druck:</translation>
    </message>
    <message>
        <source>At once, on the default printer</source>
        <translation>Sofort, auf dem Standarddrucker</translation>
    </message>
    <message>
        <source>After the print dialog</source>
        <translation>Nach dem Druckdialog</translation>
    </message>
    <message>
        <source>Export documents as:</source>
        <translation>Dokumente exportieren als:</translation>
    </message>
    <message>
        <source>Tabo document</source>
        <translation>Tabo-Dokument</translation>
    </message>
    <message>
        <source>XML</source>
        <translation>XML</translation>
    </message>
    <message>
        <source>Sort lines by:</source>
        <translation>Zeilen sortieren nach:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Order of entry</source>
        <translation>Reihenfolge der Eingabe</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Neueste zuerst</translation>
    </message>
    <message>
        <source>Highest amount</source>
        <translation>Höchster Betrag</translation>
    </message>
    <message>
        <source>Rate (%)</source>
        <translation>Satz (%)</translation>
    </message>
    <message>
        <source>Standard rate</source>
        <translation>Normalsatz</translation>
    </message>
    <message>
        <source>Zero rated</source>
        <translation>Nullsatz</translation>
    </message>
    <message>
        <source>Exempt</source>
        <translation>Steuerbefreit</translation>
    </message>
    <message>
        <source>Reverse charge</source>
        <translation>Umkehr der Steuerschuld</translation>
    </message>
    <message>
        <source>Intra-community supply</source>
        <translation>Innergemeinschaftliche Lieferung</translation>
    </message>
    <message>
        <source>Export outside the EU</source>
        <translation>Ausfuhr außerhalb der EU</translation>
    </message>
    <message>
        <source>Not subject to VAT</source>
        <translation>Nicht umsatzsteuerpflichtig</translation>
    </message>
    <message>
        <source>E-invoice category</source>
        <translation>E-Rechnungs-Kategorie</translation>
    </message>
    <message>
        <source>Reason when not charged</source>
        <translation>Grund, wenn keine Steuer berechnet wird</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Steuer %1</translation>
    </message>
    <message>
        <source>Compound</source>
        <translation>Zusammengesetzt</translation>
    </message>
    <message>
        <source>e.g. Steuerschuldnerschaft des Leistungsempfängers</source>
        <translation>z. B. Steuerschuldnerschaft des Leistungsempfängers</translation>
    </message>
    <message>
        <source>A compound tax is computed on the net amount plus the taxes before it.</source>
        <translation>Eine zusammengesetzte Steuer wird auf den Nettobetrag samt der vorigen Steuern berechnet.</translation>
    </message>
    <message>
        <source>Calculate new documents to the cent (EN 16931)</source>
        <translation>Neue Dokumente centgenau berechnen (EN 16931)</translation>
    </message>
    <message>
        <source>Each line is rounded to the cent and each rate&apos;s VAT is taken after the discount. Compound taxes and lines with two taxes are calculated the classic way. Existing documents keep their figures.</source>
        <translation>Jede Zeile wird auf den Cent gerundet und die Umsatzsteuer je Satz nach dem Rabatt berechnet. Zusammengesetzte Steuern und Zeilen mit zwei Steuern werden klassisch berechnet. Bestehende Dokumente behalten ihre Beträge.</translation>
    </message>
    <message>
        <source>Take the discount before taxes (classic calculation)</source>
        <translation>Rabatt vor Steuern abziehen (klassische Berechnung)</translation>
    </message>
    <message>
        <source>Show each line&apos;s tax amounts</source>
        <translation>Steuerbeträge jeder Zeile zeigen</translation>
    </message>
    <message>
        <source>Show each line&apos;s amount before tax</source>
        <translation>Betrag jeder Zeile vor Steuern zeigen</translation>
    </message>
    <message>
        <source>Conditions:</source>
        <translation>Bedingungen:</translation>
    </message>
    <message>
        <source>Footer:</source>
        <translation>Fußzeile:</translation>
    </message>
    <message>
        <source>Free text:</source>
        <translation>Freier Text:</translation>
    </message>
    <message>
        <source>E-mail text:</source>
        <translation>E-Mail-Text:</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>These texts are copied into new documents and may hold HTML.</source>
        <translation>Diese Texte werden in neue Dokumente kopiert und dürfen HTML enthalten.</translation>
    </message>
    <message>
        <source>Paper and rows</source>
        <translation>Papier und Zeilen</translation>
    </message>
    <message>
        <source>Paper size:</source>
        <translation>Papierformat:</translation>
    </message>
    <message>
        <source>US Letter</source>
        <translation>US Letter</translation>
    </message>
    <message>
        <source>US Legal</source>
        <translation>US Legal</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>B4 (JIS)</source>
        <translation>B4 (JIS)</translation>
    </message>
    <message>
        <source>B5 (JIS)</source>
        <translation>B5 (JIS)</translation>
    </message>
    <message>
        <source>Print and write PDFs without page margins</source>
        <translation>PDFs ohne Seitenränder drucken und schreiben</translation>
    </message>
    <message>
        <source>Show article numbers on rows</source>
        <translation>Artikelnummern in den Zeilen zeigen</translation>
    </message>
    <message>
        <source>Account book font:</source>
        <translation>Schrift des Kassenbuchs:</translation>
    </message>
    <message>
        <source>Number the account book&apos;s pages</source>
        <translation>Seiten des Kassenbuchs nummerieren</translation>
    </message>
    <message>
        <source>Print the account book with details</source>
        <translation>Kassenbuch mit Details drucken</translation>
    </message>
    <message>
        <source>“%1” is no region; use a name such as de_DE or fr_FR.</source>
        <translation>“%1” ist keine Region; verwenden Sie einen Namen wie de_DE oder fr_FR.</translation>
    </message>
    <message>
        <source>Documents&apos; region:</source>
        <translation>Region der Dokumente:</translation>
    </message>
    <message>
        <source>Numbers, amounts and month names on documents follow this region.</source>
        <translation>Zahlen, Beträge und Monatsnamen auf Dokumenten folgen dieser Region.</translation>
    </message>
    <message>
        <source>Date pattern:</source>
        <translation>Datumsmuster:</translation>
    </message>
    <message>
        <source>Today:</source>
        <translation>Heute:</translation>
    </message>
    <message>
        <source>Address pattern:</source>
        <translation>Adressmuster:</translation>
    </message>
    <message>
        <source>Words printed on documents</source>
        <translation>Wörter auf Dokumenten</translation>
    </message>
    <message>
        <source>SKU number</source>
        <translation>Artikelnummer</translation>
    </message>
    <message>
        <source>Net amounts</source>
        <translation>Nettobeträge</translation>
    </message>
    <message>
        <source>Line totals</source>
        <translation>Zeilensummen</translation>
    </message>
    <message>
        <source>VAT ID</source>
        <translation>USt-IdNr.</translation>
    </message>
    <message>
        <source>Install Language Defaults…</source>
        <translation>Sprachvorgaben installieren…</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Englisch</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Französisch</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spanisch</translation>
    </message>
    <message>
        <source>Install Language Defaults</source>
        <translation>Sprachvorgaben installieren</translation>
    </message>
    <message>
        <source>Language of the documents&apos; words and texts:</source>
        <translation>Sprache der Wörter und Texte der Dokumente:</translation>
    </message>
    <message>
        <source>Client number pattern:</source>
        <translation>Muster der Kundennummer:</translation>
    </message>
    <message>
        <source>Name in the salutation:</source>
        <translation>Name in der Anrede:</translation>
    </message>
    <message>
        <source>Last name</source>
        <translation>Nachname</translation>
    </message>
    <message>
        <source>First and last name</source>
        <translation>Vor- und Nachname</translation>
    </message>
    <message>
        <source>Title and last name</source>
        <translation>Titel und Nachname</translation>
    </message>
    <message>
        <source>Title and first name</source>
        <translation>Titel und Vorname</translation>
    </message>
    <message>
        <source>Title, first and last name</source>
        <translation>Titel, Vor- und Nachname</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen…</translation>
    </message>
    <message>
        <source>Choose Contacts File</source>
        <translation>Kontaktdatei wählen</translation>
    </message>
    <message>
        <source>Contacts (vCard file):</source>
        <translation>Kontakte (vCard-Datei):</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Datenbank</translation>
    </message>
    <message>
        <source>Keep the database in a folder of my choice</source>
        <translation>Datenbank in einem Ordner meiner Wahl ablegen</translation>
    </message>
    <message>
        <source>Stored in:</source>
        <translation>Gespeichert in:</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sicherungen</translation>
    </message>
    <message>
        <source>The automatic backup is kept in %1</source>
        <translation>Die automatische Sicherung liegt in %1</translation>
    </message>
    <message>
        <source>Show Automatic Backup</source>
        <translation>Automatische Sicherung zeigen</translation>
    </message>
    <message>
        <source>Reminders While Tabo Is Closed</source>
        <translation>Erinnerungen, während Tabo geschlossen ist</translation>
    </message>
    <message>
        <source>A timer of your desktop session shows due reminders every hour (%1).</source>
        <translation>Ein Timer Ihrer Desktop-Sitzung zeigt fällige Erinnerungen stündlich (%1).</translation>
    </message>
    <message>
        <source>Reminders arrive only while Tabo is open.</source>
        <translation>Erinnerungen kommen nur, während Tabo geöffnet ist.</translation>
    </message>
    <message>
        <source>Remove Timer</source>
        <translation>Timer entfernen</translation>
    </message>
    <message>
        <source>Install Timer</source>
        <translation>Timer installieren</translation>
    </message>
</context>
<context>
    <name>tabo::ReportWindow</name>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Only invoices dated from</source>
        <translation>Nur Rechnungen vom</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Als PDF speichern…</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Drucken…</translation>
    </message>
    <message>
        <source>to</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Von:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Bis:</translation>
    </message>
</context>
<context>
    <name>tabo::ScheduleWindow</name>
    <message>
        <source>Repeated Invoices</source>
        <translation>Wiederkehrende Rechnungen</translation>
    </message>
    <message>
        <source>Repeat the current invoice</source>
        <translation>Die aktuelle Rechnung wiederholen</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>months</source>
        <translation>Monate</translation>
    </message>
    <message>
        <source>quarters</source>
        <translation>Quartale</translation>
    </message>
    <message>
        <source>years</source>
        <translation>Jahre</translation>
    </message>
    <message>
        <source>weeks</source>
        <translation>Wochen</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Letzter Tag</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>unbegrenzt</translation>
    </message>
    <message>
        <source>E-mail each invoice when it is written (Tabo asks first)</source>
        <translation>Jede Rechnung nach dem Schreiben per E-Mail senden (Tabo fragt vorher)</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Invoice:</source>
        <translation>Rechnung:</translation>
    </message>
    <message>
        <source>Every:</source>
        <translation>Alle:</translation>
    </message>
    <message>
        <source>First on:</source>
        <translation>Erste am:</translation>
    </message>
    <message>
        <source>Number of invoices:</source>
        <translation>Zahl der Rechnungen:</translation>
    </message>
    <message>
        <source>Repeated invoices</source>
        <translation>Wiederkehrende Rechnungen</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nächste</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Geschrieben</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausieren</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Select an invoice in the list to repeat it.</source>
        <translation>Wählen Sie eine Rechnung in der Liste, um sie zu wiederholen.</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>pausiert</translation>
    </message>
    <message>
        <source>ended</source>
        <translation>beendet</translation>
    </message>
</context>
<context>
    <name>tabo::ShippingPopover</name>
    <message>
        <source>Shipping</source>
        <translation>Versand</translation>
    </message>
    <message>
        <source>Remembered</source>
        <translation>Gemerkt</translation>
    </message>
    <message>
        <source>Charge shipping on this document</source>
        <translation>Versand auf diesem Dokument berechnen</translation>
    </message>
    <message>
        <source>Show a second line:</source>
        <translation>Zweite Zeile zeigen:</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>Amount (net):</source>
        <translation>Betrag (netto):</translation>
    </message>
    <message>
        <source>Taxes:</source>
        <translation>Steuern:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Notiz:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Verwenden</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Steuer %1</translation>
    </message>
    <message>
        <source>The shipping could not be changed.</source>
        <translation>Der Versand konnte nicht geändert werden.</translation>
    </message>
    <message>
        <source>Second line</source>
        <translation>Zweite Zeile</translation>
    </message>
</context>
<context>
    <name>tabo::ShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Kürzel</translation>
    </message>
</context>
<context>
    <name>tabo::SummaryBar</name>
    <message>
        <source>Invoices</source>
        <translation>Rechnungen</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Angebote</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Bezahlt</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>Fällig</translation>
    </message>
</context>
<context>
    <name>tabo::TemplatePopover</name>
    <message>
        <source>New Template</source>
        <translation>Neue Vorlage</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation>Notizen:</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Kunde</translation>
    </message>
    <message>
        <source>Heading and subject</source>
        <translation>Überschrift und Betreff</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Versand</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Rabatt</translation>
    </message>
    <message>
        <source>Include:</source>
        <translation>Einschließen:</translation>
    </message>
    <message>
        <source>Save Template</source>
        <translation>Vorlage speichern</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Please give the template a name.</source>
        <translation>Bitte geben Sie der Vorlage einen Namen.</translation>
    </message>
    <message>
        <source>There is no document to save as a template.</source>
        <translation>Es gibt kein Dokument, das als Vorlage gespeichert werden kann.</translation>
    </message>
    <message>
        <source>Delete Template</source>
        <translation>Vorlage löschen</translation>
    </message>
    <message>
        <source>Deleting templates is permanent and cannot be undone. Do you really want to delete the template “%1”?</source>
        <translation>Das Löschen von Vorlagen ist endgültig und kann nicht rückgängig gemacht werden. Möchten Sie die Vorlage “%1” wirklich löschen?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>tabo::TextsPage</name>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>Bedingungen</translation>
    </message>
    <message>
        <source>Footer</source>
        <translation>Fußzeile</translation>
    </message>
    <message>
        <source>Extra text</source>
        <translation>Zusätzlicher Text</translation>
    </message>
    <message>
        <source>Second extra text</source>
        <translation>Zweiter zusätzlicher Text</translation>
    </message>
</context>
<context>
    <name>tabo::TotalsPanel</name>
    <message>
        <source>Net</source>
        <translation>Netto</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Versand</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Rabatt</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Steuer %1</translation>
    </message>
</context>
<context>
    <name>tabo::UserGuideWindow</name>
    <message>
        <source>Tabo User Guide</source>
        <translation>Tabo-Benutzerhandbuch</translation>
    </message>
    <message>
        <source>The user guide is not installed.</source>
        <translation>Das Benutzerhandbuch ist nicht installiert.</translation>
    </message>
</context>
</TS>

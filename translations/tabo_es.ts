<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>AccountBook</name>
    <message>
        <source>Hint!</source>
        <translation>¡Aviso!</translation>
    </message>
    <message>
        <source>This feature is bound to the arranged invoices in Tabo&apos;s main window. This means you can, for example, search for a client and therefore print out the account book just for this single client or you can pre-filter all your invoices to print out the account book only for paid or overdue invoices.</source>
        <translation>Esta función está ligada a las facturas ordenadas en la ventana principal de Tabo. Así puede, por ejemplo, buscar un cliente e imprimir el libro de cuentas solo para ese cliente, o filtrar antes sus facturas para imprimirlo solo para las pagadas o vencidas.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>¡Error!</translation>
    </message>
    <message>
        <source>The account book could not be written.</source>
        <translation>No se pudo escribir el libro de cuentas.</translation>
    </message>
    <message>
        <source>%1 | Account Book</source>
        <translation>%1 | Libro de cuentas</translation>
    </message>
</context>
<context>
    <name>AccountBookCommand</name>
    <message>
        <source>Write the account book of the invoices a filter and search show as PDF.</source>
        <translation>Escribe como PDF el libro de cuentas de las facturas que muestran un filtro y una búsqueda.</translation>
    </message>
    <message>
        <source>The PDF to write.</source>
        <translation>El PDF que escribir.</translation>
    </message>
    <message>
        <source>Give the PDF to write with --pdf FILE.</source>
        <translation>Indique el PDF que escribir con --pdf FILE.</translation>
    </message>
    <message>
        <source>The account book could not be written to “%1”.</source>
        <translation>No se pudo escribir el libro de cuentas en “%1”.</translation>
    </message>
</context>
<context>
    <name>AccountingExport</name>
    <message>
        <source>Send Invoices To quandrella</source>
        <translation>Enviar facturas a quandrella</translation>
    </message>
    <message>
        <source>Send Invoices To Vorlux</source>
        <translation>Enviar facturas a Vorlux</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>¡Error!</translation>
    </message>
    <message>
        <source>Could not write Vorlux/quandrella export data.</source>
        <translation>No se pudieron escribir los datos de exportación para Vorlux/quandrella.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Vorlux/quandrella export file couldn&apos;t be opened. Please ensure that Vorlux or quandrella is installed on your Mac and running.</source>
        <translation>No se pudo abrir el archivo de exportación de Vorlux/quandrella. Asegúrese de que Vorlux o quandrella esté instalado en su Mac y en marcha.</translation>
    </message>
</context>
<context>
    <name>AccountingExportCommand</name>
    <message>
        <source>First day.</source>
        <translation>Primer día.</translation>
    </message>
    <message>
        <source>Last day.</source>
        <translation>Último día.</translation>
    </message>
    <message>
        <source>Which invoices.</source>
        <translation>Qué facturas.</translation>
    </message>
    <message>
        <source>How lines go over.</source>
        <translation>Cómo se trasladan las líneas.</translation>
    </message>
    <message>
        <source>Only write the file.</source>
        <translation>Solo escribir el archivo.</translation>
    </message>
    <message>
        <source>Unknown program “%1”.</source>
        <translation>Programa desconocido “%1”.</translation>
    </message>
    <message>
        <source>“%1” is not an ISO 8601 date.</source>
        <translation>“%1” no es una fecha ISO 8601.</translation>
    </message>
    <message>
        <source>The kind is 0, 1 or 2.</source>
        <translation>El tipo es 0, 1 o 2.</translation>
    </message>
    <message>
        <source>The items kind is 0 or 1.</source>
        <translation>El tipo de artículos es 0 o 1.</translation>
    </message>
    <message>
        <source>Write the invoices in the date range (ISO 8601; by default all shown) and of a kind (0 all but created, 1 paid, 2 overdue) for an accounting program, with one summary line (items kind 0) or every line (1); kinds not given stay as last set. Opens the file unless --no-open. Prints the file and the number of invoices.</source>
        <translation>Escribe las facturas del intervalo (ISO 8601; por defecto todas las mostradas) y de un tipo (0 todas salvo creadas, 1 pagadas, 2 vencidas) para un programa de contabilidad, con una línea de resumen (tipo de artículos 0) o cada línea (1); los tipos no indicados quedan como la última vez. Abre el archivo salvo con --no-open. Muestra el archivo y el número de facturas.</translation>
    </message>
</context>
<context>
    <name>AddItemCommand</name>
    <message>
        <source>“%1” is not a unit code of UN/ECE Recommendation 20 (such as HUR, C62, DAY).</source>
        <translation>“%1” no es un código de unidad de la Recomendación 20 de la CEPE (como HUR, C62, DAY).</translation>
    </message>
    <message>
        <source>Add a line to a document as the item popover does, e.g. title=Consulting price=100 quantity=2 tax1=1 (also subtitle, unit, unitCode, sku, note; baseAmount, unitCount, isTax1Applied..3 are the same fields). Rates, tax titles and compound flags come from the preferences; any other line attribute is set afterwards. The catalogue remembers the line. Prints the line&apos;s unique ID.</source>
        <translation>Añade una línea a un documento como la ventana de artículo, p. ej. title=Consultoría price=100 quantity=2 tax1=1 (también subtitle, unit, unitCode, sku, note; baseAmount, unitCount, isTax1Applied..3 son los mismos campos). Tipos, nombres de impuestos y compuestos vienen de las preferencias; cualquier otro atributo de línea se establece después. El catálogo recuerda la línea. Muestra el identificador único de la línea.</translation>
    </message>
</context>
<context>
    <name>AddressCommand</name>
    <message>
        <source>Set a document&apos;s client as the address popover does, from contact N (default 1) of a vCard file by the address pattern and from the keys </source>
        <translation>Establece el cliente de un documento como lo hace la ventana de dirección: desde el contacto N (1 por defecto) de un archivo vCard según el patrón de dirección y desde las claves </translation>
    </message>
    <message>
        <source>Take the contact from a vCard file.</source>
        <translation>Tomar el contacto de un archivo vCard.</translation>
    </message>
    <message>
        <source>Which contact of the file, 1 for the first.</source>
        <translation>Qué contacto del archivo, 1 para el primero.</translation>
    </message>
    <message>
        <source>Give a vCard file or at least one field.</source>
        <translation>Indique un archivo vCard o al menos un campo.</translation>
    </message>
    <message>
        <source>“%1” is not a contact number.</source>
        <translation>“%1” no es un número de contacto.</translation>
    </message>
    <message>
        <source>. Fields not given are empty, as in a fresh popover. The address is remembered unless it already is.</source>
        <translation>. Los campos no indicados quedan vacíos, como en una ventana nueva. La dirección se recuerda salvo que ya lo esté.</translation>
    </message>
    <message>
        <source>The vCard file holds %1 contact(s); there is no contact %2.</source>
        <translation>El archivo vCard contiene %1 contacto(s); no existe el contacto %2.</translation>
    </message>
    <message>
        <source>--contact needs --vcard.</source>
        <translation>--contact necesita --vcard.</translation>
    </message>
</context>
<context>
    <name>AddressPopover</name>
    <message>
        <source>Error!</source>
        <translation>¡Error!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>AppController</name>
    <message>
        <source>Failed to initialize the store</source>
        <translation>No se pudo inicializar el almacén</translation>
    </message>
    <message>
        <source>There was an error building up the data file.</source>
        <translation>Hubo un error al construir el archivo de datos.</translation>
    </message>
    <message>
        <source>Warning!</source>
        <translation>¡Atención!</translation>
    </message>
    <message>
        <source>Tabo 2 comes with new features that require the database to be updated.
Once updated you will not be able to open and edit it with an older version of Tabo.

In case you don&apos;t want to upgrade to Tabo 2 - which is a paid upgrade - you need to quit Tabo 2 right now and just continue working with Tabo 1.

Do you want to update the database and use Tabo 2?</source>
        <translation>Tabo 2 trae funciones nuevas que requieren actualizar la base de datos.
Una vez actualizada, no podrá abrirla ni editarla con una versión anterior de Tabo.

Si no quiere pasar a Tabo 2 (una actualización de pago), salga de Tabo 2 ahora y siga trabajando con Tabo 1.

¿Quiere actualizar la base de datos y usar Tabo 2?</translation>
    </message>
    <message>
        <source>Don&apos;t Update Database and Quit Tabo 2</source>
        <translation>No actualizar la base de datos y salir de Tabo 2</translation>
    </message>
    <message>
        <source>Update Database And Use Tabo 2</source>
        <translation>Actualizar la base de datos y usar Tabo 2</translation>
    </message>
    <message>
        <source>The folder “%1” could not be created.</source>
        <translation>No se pudo crear la carpeta “%1”.</translation>
    </message>
    <message>
        <source>Expected a folder to store application data, found a file (%1).</source>
        <translation>Se esperaba una carpeta para los datos de la aplicación y se encontró un archivo (%1).</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>¡Error!</translation>
    </message>
    <message>
        <source>

The empty file can be kept as “%1” and a new database started with the documents of the automatic backup “%2”.</source>
        <translation>

El archivo vacío puede conservarse como “%1” y empezar una nueva base de datos con los documentos de la copia de seguridad automática “%2”.</translation>
    </message>
    <message>
        <source>Restore Automatic Backup</source>
        <translation>Restaurar la copia automática</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>“%1” could not be renamed.</source>
        <translation>No se pudo cambiar el nombre de “%1”.</translation>
    </message>
    <message>
        <source>Changed Elsewhere</source>
        <translation>Cambiado en otro lugar</translation>
    </message>
    <message>
        <source>“%1” was changed by another program (another Tabo window or tabo-cli) after it was read here. Keep your changes and overwrite the other ones, or reload the stored version and lose your changes?</source>
        <translation>“%1” fue cambiado por otro programa (otra ventana de Tabo o tabo-cli) después de leerlo aquí. ¿Mantener sus cambios y sobrescribir los otros, o recargar la versión guardada y perder sus cambios?</translation>
    </message>
    <message>
        <source>Keep My Changes</source>
        <translation>Mantener mis cambios</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recargar</translation>
    </message>
    <message>
        <source>Each line is rounded to the cent and the VAT of each rate is taken on the amount after the discount, which is what tax offices and e-invoices (EN 16931) expect.</source>
        <translation>Cada línea se redondea al céntimo y el IVA de cada tipo se calcula sobre el importe después del descuento, como esperan Hacienda y las facturas electrónicas (EN 16931).</translation>
    </message>
    <message>
        <source>Compose Footers?</source>
        <translation>¿Componer los pies de página?</translation>
    </message>
    <message>
        <source>The footers of invoices, quotes, reminders and delivery slips are replaced by one made from your company&apos;s address, tax and bank details:

%1</source>
        <translation>Los pies de página de facturas, presupuestos, recordatorios y albaranes se sustituyen por uno compuesto con la dirección y los datos fiscales y bancarios de su empresa:

%1</translation>
    </message>
    <message>
        <source>Compose</source>
        <translation>Componer</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>No se pudieron guardar los cambios al salir. ¿Salir de todos modos?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Si sale ahora, perderá los cambios hechos desde el último guardado correcto</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Salir de todos modos</translation>
    </message>
    <message>
        <source>The folder “%1” does not exist.</source>
        <translation>La carpeta “%1” no existe.</translation>
    </message>
    <message>
        <source>The database could not be moved to “%1”.</source>
        <translation>No se pudo mover la base de datos a “%1”.</translation>
    </message>
    <message>
        <source>Hint!</source>
        <translation>¡Aviso!</translation>
    </message>
    <message>
        <source>For your own safety Tabo will create a backup of your current data before moving your database to the changed location. You may want to save it temporarily on your desktop.

Afterwards Tabo will automatically restart.</source>
        <translation>Por su seguridad, Tabo hará una copia de sus datos actuales antes de mover la base de datos a la nueva ubicación. Puede guardarla temporalmente en su escritorio.

Después, Tabo se reiniciará automáticamente.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Choose Custom Database Path</source>
        <translation>Elegir ruta propia de la base de datos</translation>
    </message>
    <message>
        <source>Install %1 Defaults?</source>
        <translation>¿Instalar los valores predeterminados de %1?</translation>
    </message>
    <message>
        <source>The labels, text blocks, numbering patterns and counters, taxes and paper size are replaced by the %1 defaults. Your company details, documents and designs stay as they are.</source>
        <translation>Las etiquetas, textos fijos, patrones y contadores de numeración, impuestos y tamaño del papel se sustituyen por los valores predeterminados de %1. Los datos de su empresa, sus documentos y sus diseños no cambian.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Database Updated</source>
        <translation>Base de datos actualizada</translation>
    </message>
    <message>
        <source>The database was successfully updated. In case your old invoices don&apos;t show up just restart Tabo 2 and everything will be fine.</source>
        <translation>La base de datos se actualizó correctamente. Si sus facturas antiguas no aparecen, reinicie Tabo 2 y todo irá bien.</translation>
    </message>
    <message>
        <source>Tabo, Tabo Documents, and the Tabo Database</source>
        <translation>Tabo, los documentos de Tabo y la base de datos de Tabo</translation>
    </message>
    <message>
        <source>In order to avoid duplicate entries, hiccups, and to keep the database intact - please use the &apos;File Menu&apos; to open documents and to restore the Tabo database.</source>
        <translation>Para evitar entradas duplicadas y contratiempos y mantener intacta la base de datos, use el menú “Archivo” para abrir documentos y restaurar la base de datos de Tabo.</translation>
    </message>
    <message>
        <source>“%1” of “%2” was changed by another program (another Tabo window or tabo-cli) while you were editing it.

Stored now: %3
Yours: %4

Keep your changes and overwrite the other ones, or reload the stored version and lose your changes?</source>
        <translation>“%1” de “%2” fue cambiado por otro programa (otra ventana de Tabo o tabo-cli) mientras lo editaba.

Guardado ahora: %3
El suyo: %4

¿Mantener sus cambios y sobrescribir los otros, o recargar la versión guardada y perder sus cambios?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Typing</source>
        <translation>Escritura</translation>
    </message>
    <message>
        <source>Due Date Before Invoice Date</source>
        <translation>Vencimiento anterior a la fecha de factura</translation>
    </message>
    <message>
        <source>The invoice would be due on %1, before its own date, %2: it would be overdue the moment it is sent. Keep this due date?</source>
        <translation>La factura vencería el %1, antes de su propia fecha, el %2: estaría vencida en cuanto se enviara. ¿Mantener este vencimiento?</translation>
    </message>
    <message>
        <source>Keep Due Date</source>
        <translation>Mantener vencimiento</translation>
    </message>
    <message>
        <source>Nothing was imported from “%1”.</source>
        <translation>No se importó nada de “%1”.</translation>
    </message>
    <message>
        <source>It is an invoice dump, which no restore reads.</source>
        <translation>Es un volcado de facturas, que ninguna restauración lee.</translation>
    </message>
    <message>
        <source>Repeated Invoices</source>
        <translation>Facturas periódicas</translation>
    </message>
    <message>
        <source>Send Repeated Invoices</source>
        <translation>Enviar facturas periódicas</translation>
    </message>
    <message>
        <source>These repeated invoices were written and are to be e-mailed:

%1

Open a message for each now?</source>
        <translation>Estas facturas periódicas se han emitido y deben enviarse por correo electrónico:

%1

¿Abrir ahora un mensaje para cada una?</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Ahora no</translation>
    </message>
</context>
<context>
    <name>AttributeText</name>
    <message>
        <source>“%1” is not a valid %2 for %3.</source>
        <translation>“%1” no es un valor válido de %2 para %3.</translation>
    </message>
    <message>
        <source>“%1” is a relationship of %2, not an attribute.</source>
        <translation>“%1” es una relación de %2, no un atributo.</translation>
    </message>
    <message>
        <source>“%1” is too large for %2 (at most %3).</source>
        <translation>“%1” es demasiado grande para %2 (como máximo %3).</translation>
    </message>
    <message>
        <source>about 3.4e38</source>
        <translation>aproximadamente 3,4e38</translation>
    </message>
    <message>
        <source>about 1.8e308</source>
        <translation>aproximadamente 1,8e308</translation>
    </message>
</context>
<context>
    <name>BackupCommand</name>
    <message>
        <source>Back up the whole database (prints the .tabo2db written), the documents or the catalogue to FILE, or the documents to the automatic backup (prints its path).</source>
        <translation>Copia toda la base de datos (muestra el .tabo2db escrito), los documentos o el catálogo en FILE, o los documentos en la copia automática (muestra su ruta).</translation>
    </message>
    <message>
        <source>The automatic backup has its own place.</source>
        <translation>La copia automática tiene su propio lugar.</translation>
    </message>
    <message>
        <source>The automatic backup “%1” could not be written. %2</source>
        <translation>No se pudo escribir la copia automática “%1”. %2</translation>
    </message>
    <message>
        <source>Missing FILE.</source>
        <translation>Falta FILE.</translation>
    </message>
    <message>
        <source>Unknown backup “%1”.</source>
        <translation>Copia desconocida “%1”.</translation>
    </message>
</context>
<context>
    <name>BackupCommands</name>
    <message>
        <source>Error!</source>
        <translation>¡Error!</translation>
    </message>
    <message>
        <source>Warning!</source>
        <translation>¡Atención!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>Restaurar…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>remembered addresses, which no restore replaces</source>
        <translation>direcciones recordadas, que ninguna restauración reemplaza</translation>
    </message>
    <message>
        <source>remembered shipping lines, which no restore replaces</source>
        <translation>líneas de envío recordadas, que ninguna restauración reemplaza</translation>
    </message>
    <message>
        <source>records no restore replaces</source>
        <translation>registros que ninguna restauración reemplaza</translation>
    </message>
    <message>
        <source>It is a PDF file.</source>
        <translation>Es un archivo PDF.</translation>
    </message>
    <message>
        <source>It is an invoice dump, which no restore reads.</source>
        <translation>Es un volcado de facturas, que ninguna restauración lee.</translation>
    </message>
    <message>
        <source>It holds a single record, not a list of them.</source>
        <translation>Contiene un único registro, no una lista.</translation>
    </message>
    <message>
        <source>It does not hold a list of records.</source>
        <translation>No contiene una lista de registros.</translation>
    </message>
    <message>
        <source>There is no database to back up.</source>
        <translation>No hay ninguna base de datos que copiar.</translation>
    </message>
    <message>
        <source>No backup was taken: the database fails its check, and a backup of it would be no better. %1</source>
        <translation>No se hizo ninguna copia: la base de datos no supera su comprobación y una copia de ella no sería mejor. %1</translation>
    </message>
    <message>
        <source>Unable to write %1: %2</source>
        <translation>No se pudo escribir %1: %2</translation>
    </message>
    <message>
        <source>Entry %1 is not a record.</source>
        <translation>La entrada %1 no es un registro.</translation>
    </message>
    <message>
        <source>It holds %1.</source>
        <translation>Contiene %1.</translation>
    </message>
    <message>
        <source>It could not be read.</source>
        <translation>No se pudo leer.</translation>
    </message>
    <message>
        <source>The file “%1” is not a %2. %3</source>
        <translation>El archivo “%1” no es una %2. %3</translation>
    </message>
    <message>
        <source>There is no database to restore into.</source>
        <translation>No hay ninguna base de datos en la que restaurar.</translation>
    </message>
    <message>
        <source>Backup Tabo Database</source>
        <translation>Copia de seguridad de la base de datos de Tabo</translation>
    </message>
    <message>
        <source>Tabo 2 Database</source>
        <translation>Base de datos de Tabo 2</translation>
    </message>
    <message>
        <source>You are about to restore your entire Tabo database from a backup. This will irretrievably replace any existing data. Do you really want to do that?</source>
        <translation>Va a restaurar toda su base de datos de Tabo desde una copia. Esto reemplazará sin remedio todos los datos existentes. ¿Seguro que quiere hacerlo?</translation>
    </message>
    <message>
        <source>Restore Tabo 2 Database</source>
        <translation>Restaurar la base de datos de Tabo 2</translation>
    </message>
    <message>
        <source>The file “%1” could not be restored. No working copy could be made beside the database.</source>
        <translation>No se pudo restaurar el archivo “%1”. No se pudo crear una copia de trabajo junto a la base de datos.</translation>
    </message>
    <message>
        <source>The file “%1” could not be restored. %2</source>
        <translation>No se pudo restaurar el archivo “%1”. %2</translation>
    </message>
    <message>
        <source>The file “%1” is not a Tabo database backup. %2</source>
        <translation>El archivo “%1” no es una copia de una base de datos de Tabo. %2</translation>
    </message>
    <message>
        <source>The database could not be restored from “%1”. %2 Your previous data are still in place.</source>
        <translation>No se pudo restaurar la base de datos desde “%1”. %2 Sus datos anteriores siguen en su sitio.</translation>
    </message>
    <message>
        <source>Backup Tabo Invoices</source>
        <translation>Copia de seguridad de las facturas de Tabo</translation>
    </message>
    <message>
        <source>Tabo Invoices</source>
        <translation>Facturas de Tabo</translation>
    </message>
    <message>
        <source>You are about to restore your Tabo invoices from a backup. This will irretrievably replace any existing invoices. Do you really want to do that?</source>
        <translation>Va a restaurar sus facturas de Tabo desde una copia. Esto reemplazará sin remedio todas las facturas existentes. ¿Seguro que quiere hacerlo?</translation>
    </message>
    <message>
        <source>Restore Tabo Invoices</source>
        <translation>Restaurar las facturas de Tabo</translation>
    </message>
    <message>
        <source>Backup Tabo Items</source>
        <translation>Copia de seguridad de los artículos de Tabo</translation>
    </message>
    <message>
        <source>Tabo Items</source>
        <translation>Artículos de Tabo</translation>
    </message>
    <message>
        <source>You are about to restore your Tabo items from a backup. This will irretrievably replace any existing items. Do you really want to do that?</source>
        <translation>Va a restaurar sus artículos de Tabo desde una copia. Esto reemplazará sin remedio todos los artículos existentes. ¿Seguro que quiere hacerlo?</translation>
    </message>
    <message>
        <source>Restore Tabo Items</source>
        <translation>Restaurar los artículos de Tabo</translation>
    </message>
    <message>
        <source>Tabo invoice backup</source>
        <translation>Copia de facturas de Tabo</translation>
    </message>
    <message>
        <source>Tabo item backup</source>
        <translation>Copia de artículos de Tabo</translation>
    </message>
    <message>
        <source>No valid backup file available. Please restore your Tabo database from your own (Time Machine) backups.</source>
        <translation>No hay ningún archivo de copia válido. Restaure su base de datos de Tabo desde sus propias copias (Time Machine).</translation>
    </message>
    <message>
        <source>Could not restore Tabo database automatically. Please do this by hand. In case of problems, simply contact the Pemra support.</source>
        <translation>No se pudo restaurar automáticamente la base de datos de Tabo. Hágalo a mano. Si tiene problemas, contacte con el soporte de Pemra.</translation>
    </message>
    <message>
        <source>No working copy could be made beside the database.</source>
        <translation>No se pudo crear una copia de trabajo junto a la base de datos.</translation>
    </message>
    <message>
        <source>Failed to create writable database file with message &apos;%1&apos;.</source>
        <translation>No se pudo crear un archivo de base de datos escribible, mensaje: &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The database “%1” cannot be used.</source>
        <translation>No se puede usar la base de datos “%1”.</translation>
    </message>
    <message>
        <source>The database “%1” could not be replaced.</source>
        <translation>No se pudo reemplazar la base de datos “%1”.</translation>
    </message>
    <message>
        <source>documents (an invoice backup or an XML export); restore it with File ▸ Restore Invoices… or tabo-cli restore invoices</source>
        <translation>documentos (una copia de facturas o una exportación XML); restáurela con Archivo ▸ Restaurar facturas… o tabo-cli restore invoices</translation>
    </message>
    <message>
        <source>catalogue items (an item backup); restore it with File ▸ Restore Items… or tabo-cli restore items</source>
        <translation>artículos del catálogo (una copia de artículos); restáurela con Archivo ▸ Restaurar artículos… o tabo-cli restore items</translation>
    </message>
    <message>
        <source>designs; import them from the Design pane</source>
        <translation>diseños; impórtelos desde la sección Diseño</translation>
    </message>
    <message>
        <source>It is a complete database backup; restore it with File ▸ Restore Database… or tabo-cli restore database.</source>
        <translation>Es una copia completa de la base de datos; restáurela con Archivo ▸ Restaurar base de datos… o tabo-cli restore database.</translation>
    </message>
    <message>
        <source>It is a single exported document or a design; import it with File ▸ Import… or from the Design pane.</source>
        <translation>Es un documento exportado suelto o un diseño; impórtelo con Archivo ▸ Importar… o desde la sección Diseño.</translation>
    </message>
</context>
<context>
    <name>BinaryPlist</name>
    <message>
        <source>cannot write a value of type %1</source>
        <translation>no se puede escribir un valor de tipo %1</translation>
    </message>
    <message>
        <source>invalid date</source>
        <translation>fecha no válida</translation>
    </message>
    <message>
        <source>truncated binary property list</source>
        <translation>lista de propiedades binaria truncada</translation>
    </message>
    <message>
        <source>damaged binary property list trailer</source>
        <translation>cola de lista de propiedades binaria dañada</translation>
    </message>
    <message>
        <source>cyclic object reference</source>
        <translation>referencia de objeto cíclica</translation>
    </message>
    <message>
        <source>object offset out of range</source>
        <translation>desplazamiento de objeto fuera de rango</translation>
    </message>
    <message>
        <source>damaged length</source>
        <translation>longitud dañada</translation>
    </message>
    <message>
        <source>unknown object type 0x%1</source>
        <translation>tipo de objeto desconocido 0x%1</translation>
    </message>
    <message>
        <source>object extends past the data</source>
        <translation>el objeto sobrepasa los datos</translation>
    </message>
    <message>
        <source>element count larger than the data</source>
        <translation>número de elementos mayor que los datos</translation>
    </message>
    <message>
        <source>object reference out of range</source>
        <translation>referencia de objeto fuera de rango</translation>
    </message>
    <message>
        <source>too many values</source>
        <translation>demasiados valores</translation>
    </message>
    <message>
        <source>dictionary key is not a string</source>
        <translation>la clave del diccionario no es una cadena</translation>
    </message>
</context>
<context>
    <name>CalcCommand</name>
    <message>
        <source>Recalculate the totals of a document.</source>
        <translation>Vuelve a calcular los totales de un documento.</translation>
    </message>
</context>
<context>
    <name>CatalogueCommand</name>
    <message>
        <source>The catalogue has no entry “%1”.</source>
        <translation>El catálogo no tiene ninguna entrada “%1”.</translation>
    </message>
    <message>
        <source>Give the entries to delete.</source>
        <translation>Indique las entradas que eliminar.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>Mostrar JSON.</translation>
    </message>
    <message>
        <source>Unknown catalogue “%1”.</source>
        <translation>Catálogo desconocido “%1”.</translation>
    </message>
    <message>
        <source>List the article catalogue (title, price, article number, unit) or the remembered shipping lines (title, amount), by title; change an entry (title, subtitle, unit, sku, note, price, tax1..tax3) or delete entries. ENTRY is a title, an article number or a uniqueID.</source>
        <translation>Lista el catálogo de artículos (título, precio, referencia, unidad) o las líneas de envío recordadas (título, importe), por título; cambia una entrada (title, subtitle, unit, sku, note, price, tax1..tax3) o elimina entradas. ENTRY es un título, una referencia o un uniqueID.</translation>
    </message>
    <message>
        <source>Give the entry and at least one KEY=VALUE.</source>
        <translation>Indique la entrada y al menos una CLAVE=VALOR.</translation>
    </message>
</context>
<context>
    <name>CliInteraction</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Don&apos;t Update Database and Quit Tabo 2</source>
        <translation>No actualizar la base de datos y salir de Tabo 2</translation>
    </message>
</context>
<context>
    <name>Command</name>
    <message>
        <source>Show this help.</source>
        <translation>Mostrar esta ayuda.</translation>
    </message>
    <message>
        <source>Missing argument.</source>
        <translation>Falta un argumento.</translation>
    </message>
    <message>
        <source>Too many arguments.</source>
        <translation>Demasiados argumentos.</translation>
    </message>
    <message>
        <source>Confirm the questions the command asks.</source>
        <translation>Confirmar las preguntas que hace la orden.</translation>
    </message>
    <message>
        <source>Filter tag.</source>
        <translation>Etiqueta de filtro.</translation>
    </message>
    <message>
        <source>The list&apos;s search.</source>
        <translation>La búsqueda de la lista.</translation>
    </message>
    <message>
        <source>“%1” is not a filter tag.</source>
        <translation>“%1” no es una etiqueta de filtro.</translation>
    </message>
    <message>
        <source>Usage: </source>
        <translation>Uso: </translation>
    </message>
    <message>
        <source>Unknown key “%1”; known keys: %2.</source>
        <translation>Clave desconocida “%1”; claves conocidas: %2.</translation>
    </message>
</context>
<context>
    <name>Console</name>
    <message>
        <source>“%1” names %2 %3; use one of their unique IDs: %4.</source>
        <translation>“%1” designa %2 %3; use uno de sus identificadores únicos: %4.</translation>
    </message>
</context>
<context>
    <name>Contacts</name>
    <message>
        <source>The vCard data holds no usable contact.</source>
        <translation>Los datos vCard no contienen ningún contacto utilizable.</translation>
    </message>
    <message>
        <source>The data is not a vCard file.</source>
        <translation>Los datos no son un archivo vCard.</translation>
    </message>
    <message>
        <source>The vCard file “%1” holds no usable contact.</source>
        <translation>El archivo vCard “%1” no contiene ningún contacto utilizable.</translation>
    </message>
    <message>
        <source>The file “%1” is not a vCard file.</source>
        <translation>El archivo “%1” no es un archivo vCard.</translation>
    </message>
    <message>
        <source>The file “%1” could not be read.</source>
        <translation>No se pudo leer el archivo “%1”.</translation>
    </message>
    <message>
        <source>The file “%1” is too large for a vCard file.</source>
        <translation>El archivo “%1” es demasiado grande para un archivo vCard.</translation>
    </message>
    <message>
        <source>You need to provide an address pattern in the Preferences.</source>
        <translation>Debe indicar un patrón de dirección en las preferencias.</translation>
    </message>
</context>
<context>
    <name>ConvertCommand</name>
    <message>
        <source>Convert a quote into an invoice (new number, title and texts); cannot be undone, so it needs --yes.</source>
        <translation>Convierte un presupuesto en factura (número, título y textos nuevos); no se puede deshacer, así que necesita --yes.</translation>
    </message>
</context>
<context>
    <name>CsvStatement</name>
    <message>
        <source>“%1” is no column of a statement; the columns are date, amount, credit, debit, currency, payer, iban, text and reference.</source>
        <translation>«%1» no es una columna de un extracto; las columnas son date, amount, credit, debit, currency, payer, iban, text y reference.</translation>
    </message>
    <message>
        <source>The file has no column “%1”.</source>
        <translation>El archivo no tiene ninguna columna «%1».</translation>
    </message>
    <message>
        <source>A statement needs at least its date and amount columns (or credit).</source>
        <translation>Un extracto necesita al menos las columnas de fecha e importe (o abono).</translation>
    </message>
    <message>
        <source>This is not a bank statement Tabo reads (CAMT.053, CAMT.054, MT940 or CSV): it has no heading of three or more columns.</source>
        <translation>No es un extracto que Tabo lea (CAMT.053, CAMT.054, MT940 o CSV): no tiene un encabezado de tres o más columnas.</translation>
    </message>
    <message>
        <source>Entry %1 has no amount that can be read: “%2”.</source>
        <translation>La entrada %1 no tiene un importe legible: «%2».</translation>
    </message>
</context>
<context>
    <name>DeleteCommand</name>
    <message>
        <source>Delete a document (needs --yes). With --adjust-counter the invoice or quote counter is raised so that no number is used twice.</source>
        <translation>Elimina un documento (necesita --yes). Con --adjust-counter se sube el contador de facturas o presupuestos para que ningún número se use dos veces.</translation>
    </message>
    <message>
        <source>Answer “Adjust Counter” after the deletion.</source>
        <translation>Responder “Adjust Counter” tras la eliminación.</translation>
    </message>
    <message>
        <source>Adjust Counter</source>
        <translation>Ajustar contador</translation>
    </message>
</context>
<context>
    <name>DeleteItemCommand</name>
    <message>
        <source>“%1” is not a line number.</source>
        <translation>“%1” no es un número de línea.</translation>
    </message>
    <message>
        <source>Delete line N (1 is the first, in the order the editor shows) of a document; needs --yes.</source>
        <translation>Elimina la línea N (1 es la primera, en el orden del editor) de un documento; necesita --yes.</translation>
    </message>
    <message>
        <source>Document “%1” has no line %2; it has %3.</source>
        <translation>El documento “%1” no tiene línea %2; tiene %3.</translation>
    </message>
</context>
<context>
    <name>DesignCommand</name>
    <message>
        <source>No design available. Please download or create a design.</source>
        <translation>No hay ningún diseño disponible. Descargue o cree un diseño.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>Mostrar JSON.</translation>
    </message>
    <message>
        <source>Design to preview.</source>
        <translation>Diseño que previsualizar.</translation>
    </message>
    <message>
        <source>The page&apos;s HTML file.</source>
        <translation>El archivo HTML de la página.</translation>
    </message>
    <message>
        <source>The row&apos;s HTML file.</source>
        <translation>El archivo HTML de la fila.</translation>
    </message>
    <message>
        <source>The stylesheet file.</source>
        <translation>El archivo de hoja de estilo.</translation>
    </message>
    <message>
        <source>Name at least one of --invoice, --item and --css.</source>
        <translation>Indique al menos una de --invoice, --item y --css.</translation>
    </message>
    <message>
        <source> Run “tabo-cli prefs install-language N” to install the built-in designs, or “tabo-cli design add”.</source>
        <translation> Ejecute “tabo-cli prefs install-language N” para instalar los diseños incluidos, o “tabo-cli design add”.</translation>
    </message>
    <message>
        <source>The design could not be added.</source>
        <translation>No se pudo añadir el diseño.</translation>
    </message>
    <message>
        <source>The PDF file “%1” could not be created.</source>
        <translation>No se pudo crear el archivo PDF “%1”.</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>No se puede leer “%1”.</translation>
    </message>
    <message>
        <source>“%1” is not UTF-8 text.</source>
        <translation>“%1” no es texto UTF-8.</translation>
    </message>
    <message>
        <source>Manage the designs documents are rendered with; preview writes the sample document through a design (the default one unless --design) as a PDF. get writes a design&apos;s page, row and stylesheet to files and set reads them back, to edit a design in any editor. TITLE may also be a design&apos;s unique ID.</source>
        <translation>Gestiona los diseños con los que se componen los documentos; preview escribe el documento de ejemplo mediante un diseño (el predeterminado salvo con --design) como PDF. get escribe la página, la fila y la hoja de estilo de un diseño en archivos y set las vuelve a leer, para editar un diseño en cualquier editor. TITLE también puede ser el identificador único de un diseño.</translation>
    </message>
    <message>
        <source>--json belongs to “design list”.</source>
        <translation>--json corresponde a “design list”.</translation>
    </message>
    <message>
        <source>--design belongs to “design preview”.</source>
        <translation>--design corresponde a “design preview”.</translation>
    </message>
    <message>
        <source>--invoice, --item and --css belong to “design get” and “design set”.</source>
        <translation>--invoice, --item y --css corresponden a “design get” y “design set”.</translation>
    </message>
</context>
<context>
    <name>DesignFile</name>
    <message>
        <source>Not an archive: %1</source>
        <translation>No es un archivo comprimido: %1</translation>
    </message>
    <message>
        <source>The archive holds no “%1”.</source>
        <translation>El archivo comprimido no contiene “%1”.</translation>
    </message>
</context>
<context>
    <name>DesignLibrary</name>
    <message>
        <source>New Design</source>
        <translation>Nuevo diseño</translation>
    </message>
    <message>
        <source>Delete Design</source>
        <translation>Eliminar diseño</translation>
    </message>
    <message>
        <source>Deleting designs is permanent and cannot be undone. Do you really want to delete the selected design?</source>
        <translation>Eliminar diseños es definitivo y no se puede deshacer. ¿Seguro que quiere eliminar el diseño seleccionado?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Import Tabo Design</source>
        <translation>Importar diseño de Tabo</translation>
    </message>
    <message>
        <source>The design “%1” could not be imported.</source>
        <translation>No se pudo importar el diseño “%1”.</translation>
    </message>
    <message>
        <source>There is no store to import into.</source>
        <translation>No hay ningún almacén en el que importar.</translation>
    </message>
    <message>
        <source>The file is not a Tabo design.</source>
        <translation>El archivo no es un diseño de Tabo.</translation>
    </message>
    <message>
        <source>The file is not a Tabo design. %1</source>
        <translation>El archivo no es un diseño de Tabo. %1</translation>
    </message>
    <message>
        <source>Export Tabo Design</source>
        <translation>Exportar diseño de Tabo</translation>
    </message>
    <message>
        <source>The design could not be exported to “%1”.</source>
        <translation>No se pudo exportar el diseño a “%1”.</translation>
    </message>
    <message>
        <source>No design is selected.</source>
        <translation>No hay ningún diseño seleccionado.</translation>
    </message>
    <message>
        <source>The design could not be archived. %1</source>
        <translation>No se pudo archivar el diseño. %1</translation>
    </message>
</context>
<context>
    <name>DesignPreview</name>
    <message>
        <source>Ooops!</source>
        <translation>¡Uy!</translation>
    </message>
    <message>
        <source>Something went really wrong while creating the preview.</source>
        <translation>Algo salió muy mal al crear la vista previa.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Factura</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>¡Error!</translation>
    </message>
</context>
<context>
    <name>DiscountCommand</name>
    <message>
        <source>Edit the discount (keys: </source>
        <translation>Editar el descuento (teclas: </translation>
    </message>
    <message>
        <source>“%1” is not a valid kind; 0 is a fixed amount, 1 a percentage.</source>
        <translation>“%1” no es un tipo válido; 0 es un importe fijo, 1 un porcentaje.</translation>
    </message>
    <message>
        <source>); kind 0 takes the amount, any other the percent (19 means 19 %); keys not given keep their values.</source>
        <translation>); el tipo 0 toma el importe, cualquier otro el porcentaje (19 significa 19 %); las claves no indicadas mantienen sus valores.</translation>
    </message>
</context>
<context>
    <name>DocumentCommands</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Sorry!</source>
        <translation>¡Lo sentimos!</translation>
    </message>
    <message>
        <source>A quote is not cancelled by a credit note: nothing was charged. Change or delete the quote instead.</source>
        <translation>Un presupuesto no se anula con una factura rectificativa: no se cobró nada. Modifique o elimine el presupuesto.</translation>
    </message>
    <message>
        <source>Only an invoice marked as sent or paid is cancelled by a credit note. An invoice still marked as created can be changed or deleted instead.</source>
        <translation>Solo una factura marcada como enviada o pagada se anula con una factura rectificativa. Una factura aún marcada como creada puede modificarse o eliminarse.</translation>
    </message>
    <message>
        <source>Cancel Invoice</source>
        <translation>Anular factura</translation>
    </message>
    <message>
        <source>Create Credit Note</source>
        <translation>Crear factura rectificativa</translation>
    </message>
    <message>
        <source>Cancels invoice %1 of %2</source>
        <translation>Anula la factura %1 del %2</translation>
    </message>
    <message>
        <source>You can&apos;t convert an invoice into a quote.</source>
        <translation>No se puede convertir una factura en presupuesto.</translation>
    </message>
    <message>
        <source>Convert Into Invoice</source>
        <translation>Convertir en factura</translation>
    </message>
    <message>
        <source>Do you really want to convert the selected quote into an invoice? This will also change the title, the boilerplate text, the counter for your invoice numbering, and you can&apos;t undo this action.</source>
        <translation>¿Seguro que quiere convertir el presupuesto seleccionado en factura? También cambiarán el título, los textos fijos y el contador de sus números de factura, y no podrá deshacerlo.</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Convertir</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>¡Error!</translation>
    </message>
    <message>
        <source>The selected invoice is marked as already sent. If you really need to delete it, please set its status back to &apos;Created&apos; first.</source>
        <translation>La factura seleccionada ya está marcada como enviada. Si de verdad necesita eliminarla, vuelva primero su estado a “Creada”.</translation>
    </message>
    <message>
        <source>Delete Invoice</source>
        <translation>Eliminar factura</translation>
    </message>
    <message>
        <source>Deleting invoices is permanent and cannot be undone. Do you really want to delete the selected invoice?</source>
        <translation>Eliminar facturas es definitivo y no se puede deshacer. ¿Seguro que quiere eliminar la factura seleccionada?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Delete Quote</source>
        <translation>Eliminar presupuesto</translation>
    </message>
    <message>
        <source>Deleting quotes is permanent and cannot be undone. Do you really want to delete the selected quote?</source>
        <translation>Eliminar presupuestos es definitivo y no se puede deshacer. ¿Seguro que quiere eliminar el presupuesto seleccionado?</translation>
    </message>
    <message>
        <source>

Adjust Counter: the next %1 will be numbered %2.
Cancel: the next %1 will be numbered %3.</source>
        <translation>

Ajustar contador: el próximo documento (%1) llevará el número %2.
Cancelar: el próximo documento (%1) llevará el número %3.</translation>
    </message>
    <message>
        <source>Adjust Counter</source>
        <translation>Ajustar contador</translation>
    </message>
    <message>
        <source>Do you want Tabo to automatically adjust your invoice counter so that you won&apos;t use the same invoice number twice?</source>
        <translation>¿Quiere que Tabo ajuste automáticamente su contador de facturas para no usar dos veces el mismo número?</translation>
    </message>
    <message>
        <source>Do you want Tabo to automatically adjust your quote counter so that you won&apos;t use the same quote number twice?</source>
        <translation>¿Quiere que Tabo ajuste automáticamente su contador de presupuestos para no usar dos veces el mismo número?</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Factura</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Presupuesto</translation>
    </message>
    <message>
        <source>A credit note with the same lines, negated, cancels this invoice; the invoice itself stays as it is.

</source>
        <translation>Una factura rectificativa con las mismas líneas, en negativo, anula esta factura; la factura en sí queda como está.

</translation>
    </message>
</context>
<context>
    <name>DumpCommand</name>
    <message>
        <source>Write documents, catalogue, designs, addresses, shipping lines and templates to an invoices dump (a keyed archive; nothing reads it back).</source>
        <translation>Escribe documentos, catálogo, diseños, direcciones, líneas de envío y plantillas en un volcado de facturas (un archivo con claves; nada lo vuelve a leer).</translation>
    </message>
</context>
<context>
    <name>DuplicateCommand</name>
    <message>
        <source>Cancel a sent or paid invoice by a credit note (needs --yes): its lines negated, numbered as invoices are, naming the invoice. Prints the credit note&apos;s unique ID.</source>
        <translation>Anula una factura enviada o pagada con una factura rectificativa (necesita --yes): sus líneas en negativo, numerada como las facturas, citando la factura. Muestra el identificador único de la rectificativa.</translation>
    </message>
    <message>
        <source>Copy a document with its lines under a new number; prints the copy&apos;s unique ID. --to-the-cent calculates the copy to the cent per VAT rate, as e-invoices need.</source>
        <translation>Copia un documento con sus líneas con un número nuevo; muestra el identificador único de la copia. --to-the-cent calcula la copia al céntimo por tipo de IVA, como necesitan las facturas electrónicas.</translation>
    </message>
</context>
<context>
    <name>EInvoice</name>
    <message>
        <source>tax %1</source>
        <translation>impuesto %1</translation>
    </message>
    <message>
        <source>A quote is not an invoice: e-invoices are made of invoices.</source>
        <translation>Un presupuesto no es una factura: las facturas electrónicas se hacen a partir de facturas.</translation>
    </message>
    <message>
        <source>The invoice needs a due date or payment conditions (Dates and status, Texts)</source>
        <translation>La factura necesita una fecha de vencimiento o condiciones de pago (Fechas y estado, Textos)</translation>
    </message>
    <message>
        <source> (Preferences ▸ Company)</source>
        <translation> (Preferencias ▸ Empresa)</translation>
    </message>
    <message>
        <source> (Client ▸ Address ▸ E-invoice)</source>
        <translation> (Cliente ▸ Dirección ▸ Factura electrónica)</translation>
    </message>
    <message>
        <source>The company&apos;s name is missing</source>
        <translation>Falta el nombre de la empresa</translation>
    </message>
    <message>
        <source>The company&apos;s street is missing</source>
        <translation>Falta la calle de la empresa</translation>
    </message>
    <message>
        <source>The company&apos;s postcode is missing</source>
        <translation>Falta el código postal de la empresa</translation>
    </message>
    <message>
        <source>The company&apos;s city is missing</source>
        <translation>Falta la ciudad de la empresa</translation>
    </message>
    <message>
        <source>The company&apos;s country code (DE, FR …) is missing</source>
        <translation>Falta el código de país de la empresa (DE, FR …)</translation>
    </message>
    <message>
        <source>The company&apos;s VAT ID or tax number is missing</source>
        <translation>Falta el número de IVA o fiscal de la empresa</translation>
    </message>
    <message>
        <source>The company&apos;s phone number is missing</source>
        <translation>Falta el teléfono de la empresa</translation>
    </message>
    <message>
        <source>The company&apos;s phone number needs at least three digits</source>
        <translation>El teléfono de la empresa necesita al menos tres cifras</translation>
    </message>
    <message>
        <source>The company&apos;s e-mail address is missing</source>
        <translation>Falta el correo de la empresa</translation>
    </message>
    <message>
        <source>The company&apos;s IBAN is missing</source>
        <translation>Falta el IBAN de la empresa</translation>
    </message>
    <message>
        <source>The currency code (EUR, CHF …) is missing</source>
        <translation>Falta el código de moneda (EUR, CHF …)</translation>
    </message>
    <message>
        <source>The client&apos;s name is missing</source>
        <translation>Falta el nombre del cliente</translation>
    </message>
    <message>
        <source>The client&apos;s postcode is missing</source>
        <translation>Falta el código postal del cliente</translation>
    </message>
    <message>
        <source>The client&apos;s city is missing</source>
        <translation>Falta la ciudad del cliente</translation>
    </message>
    <message>
        <source>The client&apos;s country code (DE, FR …) is missing</source>
        <translation>Falta el código de país del cliente (DE, FR …)</translation>
    </message>
    <message>
        <source>The client&apos;s e-invoice address or e-mail address is missing</source>
        <translation>Falta la dirección de factura electrónica o el correo del cliente</translation>
    </message>
    <message>
        <source>The invoice has no number (Invoice ▸ Number)</source>
        <translation>La factura no tiene número (Factura ▸ Número)</translation>
    </message>
    <message>
        <source>The invoice has no date (Dates and status)</source>
        <translation>La factura no tiene fecha (Fechas y estado)</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Línea %1</translation>
    </message>
    <message>
        <source>Line %1 “%2”</source>
        <translation>Línea %1 “%2”</translation>
    </message>
    <message>
        <source>The invoice has no lines (Items)</source>
        <translation>La factura no tiene líneas (Artículos)</translation>
    </message>
    <message>
        <source>The shipping carries the compound tax %1, which an e-invoice cannot state.</source>
        <translation>El envío lleva el impuesto compuesto %1, que una factura electrónica no puede indicar.</translation>
    </message>
    <message>
        <source>The lines, each to the cent, add up to %1, but the invoice prints a net amount of %2: the classic calculation does not round each line.</source>
        <translation>Las líneas, cada una al céntimo, suman %1, pero la factura imprime un importe neto de %2: el cálculo clásico no redondea cada línea.</translation>
    </message>
    <message>
        <source>The invoice prints a total of %1, but its lines, shipping and taxes come to %2.</source>
        <translation>La factura imprime un total de %1, pero sus líneas, envío e impuestos suman %2.</translation>
    </message>
    <message>
        <source>The tax at %1 %: the invoice prints %2, but %3 × %1 % is %4. A rate changed after the lines were added causes this: recalculate the invoice.</source>
        <translation>El impuesto al %1 %: la factura imprime %2, pero %3 × %1 % son %4. Lo causa un tipo cambiado después de añadir las líneas: vuelva a calcular la factura.</translation>
    </message>
    <message>
        <source>Supplies not subject to VAT cannot share an e-invoice with taxed ones.</source>
        <translation>Las operaciones no sujetas a IVA no pueden compartir una factura electrónica con las gravadas.</translation>
    </message>
    <message>
        <source>“%1” is not a VAT category (Preferences ▸ Taxes).</source>
        <translation>“%1” no es una categoría de IVA (Preferencias ▸ Impuestos).</translation>
    </message>
    <message>
        <source>A tax</source>
        <translation>Un impuesto</translation>
    </message>
    <message>
        <source>The client&apos;s VAT ID is missing, which reverse charge and intra-community supplies need (Client ▸ Address)</source>
        <translation>Falta el número de IVA del cliente, que necesitan la inversión del sujeto pasivo y las entregas intracomunitarias (Cliente ▸ Dirección)</translation>
    </message>
    <message>
        <source>%1 carries %2 and %3; an e-invoice line carries one VAT rate.</source>
        <translation>%1 lleva %2 y %3; una línea de factura electrónica lleva un solo tipo de IVA.</translation>
    </message>
    <message>
        <source>%1 carries the compound tax %2, which an e-invoice cannot state.</source>
        <translation>%1 lleva el impuesto compuesto %2, que una factura electrónica no puede indicar.</translation>
    </message>
    <message>
        <source>The shipping carries %1 and %2; an e-invoice charge carries one VAT rate.</source>
        <translation>El envío lleva %1 y %2; un recargo de factura electrónica lleva un solo tipo de IVA.</translation>
    </message>
    <message>
        <source>The discount: the classic calculation charges the tax at %1 % on the amount before the discount (%2), an e-invoice on the amount after it (%3 × %1 % = %4).</source>
        <translation>El descuento: el cálculo clásico aplica el impuesto al %1 % sobre el importe antes del descuento (%2), una factura electrónica sobre el importe después (%3 × %1 % = %4).</translation>
    </message>
    <message>
        <source>%1 is marked as “%2” in the preferences but charges %3.</source>
        <translation>%1 está marcado como “%2” en las preferencias pero cobra %3.</translation>
    </message>
    <message>
        <source>%1 is “%2”, which needs a reason why VAT is not charged (Preferences ▸ Taxes)</source>
        <translation>%1 es “%2”, que necesita un motivo por el que no se cobra IVA (Preferencias ▸ Impuestos)</translation>
    </message>
    <message>
        <source>The invoice prints a total of %1; stated the standard&apos;s way it comes to %2.</source>
        <translation>La factura imprime un total de %1; calculado según la norma, da %2.</translation>
    </message>
</context>
<context>
    <name>EInvoiceCommand</name>
    <message>
        <source>Write the page as PDF.</source>
        <translation>Escribir la página como PDF.</translation>
    </message>
    <message>
        <source>Write the page as HTML.</source>
        <translation>Escribir la página como HTML.</translation>
    </message>
    <message>
        <source>Say where: --pdf OUT or --html OUT.</source>
        <translation>Indique dónde: --pdf SALIDA o --html SALIDA.</translation>
    </message>
    <message>
        <source>credit note</source>
        <translation>factura rectificativa</translation>
    </message>
    <message>
        <source>, from a PDF</source>
        <translation>, de un PDF</translation>
    </message>
    <message>
        <source>Its totals do not add up.</source>
        <translation>Sus totales no cuadran.</translation>
    </message>
    <message>
        <source>its totals add up: %1 %2 due
</source>
        <translation>los totales cuadran: %1 %2 pendientes
</translation>
    </message>
    <message>
        <source>The page could not be written to “%1”.</source>
        <translation>No se pudo escribir la página en “%1”.</translation>
    </message>
    <message>
        <source>XRechnung in CII.</source>
        <translation>XRechnung en CII.</translation>
    </message>
    <message>
        <source>XRechnung in UBL.</source>
        <translation>XRechnung en UBL.</translation>
    </message>
    <message>
        <source>Factur-X / ZUGFeRD PDF.</source>
        <translation>PDF Factur-X / ZUGFeRD.</translation>
    </message>
    <message>
        <source>Design of the PDF.</source>
        <translation>Diseño del PDF.</translation>
    </message>
    <message>
        <source>Missing export, missing, view or check.</source>
        <translation>Falta export, missing, view o check.</translation>
    </message>
    <message>
        <source>Unknown “%1”: export, missing, view or check.</source>
        <translation>Desconocido “%1”: export, missing, view o check.</translation>
    </message>
    <message>
        <source>The e-invoice cannot be written yet (%1 above).</source>
        <translation>Aún no se puede escribir la factura electrónica (%1 arriba).</translation>
    </message>
    <message>
        <source>The e-invoice cannot be written yet: </source>
        <translation>Aún no se puede escribir la factura electrónica: </translation>
    </message>
    <message>
        <source>Write an invoice as XRechnung (CII or UBL) or as a Factur-X / ZUGFeRD PDF, or list what it still needs for one (each in words, with where to fill it); nothing is written while something is missing. view and check read a received e-invoice (XML, or a PDF carrying one): a readable page of it, or whether it is well-formed and its totals add up. A received invoice is never stored.</source>
        <translation>Escribe una factura como XRechnung (CII o UBL) o como PDF Factur-X / ZUGFeRD, o lista lo que aún le falta (en palabras, con dónde rellenarlo); no se escribe nada mientras falte algo. view y check leen una factura electrónica recibida (XML, o un PDF que lleve una): una página legible, o si está bien formada y sus totales cuadran. Una factura recibida nunca se guarda.</translation>
    </message>
    <message>
        <source>Say which and where: --xrechnung-cii FILE, --xrechnung-ubl FILE or --facturx FILE.pdf.</source>
        <translation>Indique qué y dónde: --xrechnung-cii ARCHIVO, --xrechnung-ubl ARCHIVO o --facturx ARCHIVO.pdf.</translation>
    </message>
    <message>
        <source> tabo-cli duplicate %1 --to-the-cent makes a copy calculated to the cent; tabo-cli prefs set centExactTotals true does so for new invoices.</source>
        <translation> tabo-cli duplicate %1 --to-the-cent crea una copia calculada al céntimo; tabo-cli prefs set centExactTotals true lo hace para las facturas nuevas.</translation>
    </message>
</context>
<context>
    <name>EInvoiceCommands</name>
    <message>
        <source>Make a copy calculated to the cent, whose e-invoice states exactly what it prints, or switch the setting for new invoices (Preferences ▸ Taxes ▸ Calculate new documents to the cent).</source>
        <translation>Cree una copia calculada al céntimo, cuya factura electrónica indique exactamente lo que imprime, o cambie el ajuste para las nuevas facturas (Preferencias ▸ Impuestos ▸ Calcular los nuevos documentos al céntimo).</translation>
    </message>
    <message>
        <source>The e-invoice cannot be written yet</source>
        <translation>Aún no se puede escribir la factura electrónica</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Make a copy calculated to the cent</source>
        <translation>Crear una copia calculada al céntimo</translation>
    </message>
    <message>
        <source>Open E-Invoice</source>
        <translation>Abrir factura electrónica</translation>
    </message>
    <message>
        <source>The e-invoice cannot be shown</source>
        <translation>No se puede mostrar la factura electrónica</translation>
    </message>
    <message>
        <source>Its page could not be made.</source>
        <translation>No se pudo crear su página.</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>PDF with e-invoice (Factur-X / ZUGFeRD)</source>
        <translation>PDF con factura electrónica (Factur-X / ZUGFeRD)</translation>
    </message>
    <message>
        <source>E-invoice (XRechnung)</source>
        <translation>Factura electrónica (XRechnung)</translation>
    </message>
    <message>
        <source>The printed invoice “%1” cannot be read.</source>
        <translation>No se puede leer la factura impresa “%1”.</translation>
    </message>
</context>
<context>
    <name>EmailCommand</name>
    <message>
        <source>What to attach.</source>
        <translation>Qué se adjunta.</translation>
    </message>
    <message>
        <source>Open a new message in the mail program with the document as a PDF attachment; an invoice is then marked as sent when markInvoiceAsSent is on. --form attaches an invoice as PDF with its e-invoice (Factur-X / ZUGFeRD) or as e-invoice alone (XRechnung) instead; without it, the einvoiceForm preference decides.</source>
        <translation>Abre un mensaje nuevo en el programa de correo con el documento como PDF adjunto; una factura se marca entonces como enviada si markInvoiceAsSent está activo. --form adjunta en su lugar una factura como PDF con su factura electrónica (Factur-X / ZUGFeRD) o solo como factura electrónica (XRechnung); sin ella, decide la preferencia einvoiceForm.</translation>
    </message>
    <message>
        <source>--form takes pdf, facturx or xrechnung.</source>
        <translation>--form admite pdf, facturx o xrechnung.</translation>
    </message>
</context>
<context>
    <name>ExportCommand</name>
    <message>
        <source>Write a document as a Tabo document (the form import reads) or as an XML property list.</source>
        <translation>Escribe un documento como documento de Tabo (la forma que lee la importación) o como lista de propiedades XML.</translation>
    </message>
    <message>
        <source>Tabo document to write.</source>
        <translation>Documento de Tabo que escribir.</translation>
    </message>
    <message>
        <source>XML file to write.</source>
        <translation>Archivo XML que escribir.</translation>
    </message>
    <message>
        <source>Give one of --tabo and --xml.</source>
        <translation>Indique una de --tabo y --xml.</translation>
    </message>
</context>
<context>
    <name>ExportXmlCommand</name>
    <message>
        <source>Write every document, or those the list shows under a filter tag (as in list), to an XML property list.</source>
        <translation>Escribe cada documento, o los que muestra la lista con una etiqueta de filtro (como en list), en una lista de propiedades XML.</translation>
    </message>
</context>
<context>
    <name>FacturX</name>
    <message>
        <source>The printed invoice could not be made a Factur-X PDF: %1</source>
        <translation>No se pudo convertir la factura impresa en un PDF Factur-X: %1</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Export Tabo Database As XML</source>
        <translation>Exportar la base de datos de Tabo como XML</translation>
    </message>
    <message>
        <source>The archive could not be built: %1</source>
        <translation>No se pudo crear el archivo comprimido: %1</translation>
    </message>
    <message>
        <source>There is no database.</source>
        <translation>No hay ninguna base de datos.</translation>
    </message>
    <message>
        <source>Export As Tabo Document</source>
        <translation>Exportar como documento de Tabo</translation>
    </message>
    <message>
        <source>Export As XML Document</source>
        <translation>Exportar como documento XML</translation>
    </message>
    <message>
        <source>Unknown export format %1.</source>
        <translation>Formato de exportación desconocido %1.</translation>
    </message>
    <message>
        <source>Tabo Database</source>
        <translation>Base de datos de Tabo</translation>
    </message>
    <message>
        <source>Export As Invoices Dump</source>
        <translation>Exportar como volcado de facturas</translation>
    </message>
    <message>
        <source>Invoices Dump</source>
        <translation>Volcado de facturas</translation>
    </message>
    <message>
        <source>Warning!</source>
        <translation>¡Atención!</translation>
    </message>
    <message>
        <source>The integrity of your data is your responsibility, and yours alone. Tabo is just a stupid App and by design it can&apos;t know or care about duplicate invoices, messed up numbers, or if you&apos;re having a bad hair day. So please, do yourself a favor and check what you are doing here. Do you still want to import the invoice?</source>
        <translation>La integridad de sus datos es responsabilidad suya, y solo suya. Tabo no es más que una app tonta y, por diseño, no puede saber de facturas duplicadas, números revueltos ni de sus días malos. Así que hágase un favor y compruebe lo que hace. ¿Aún quiere importar la factura?</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Import Tabo Document</source>
        <translation>Importar documento de Tabo</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>¡Error!</translation>
    </message>
    <message>
        <source>The file “%1” is not a Tabo document.</source>
        <translation>El archivo “%1” no es un documento de Tabo.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>The file “%1” could not be read: %2</source>
        <translation>No se pudo leer el archivo “%1”: %2</translation>
    </message>
</context>
<context>
    <name>GuiInteraction</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>ImportCommand</name>
    <message>
        <source>No file “%1”.</source>
        <translation>No existe el archivo “%1”.</translation>
    </message>
    <message>
        <source>Nothing was imported from “%1”.</source>
        <translation>No se importó nada de “%1”.</translation>
    </message>
    <message>
        <source>Add the document of a Tabo document file; the application warns first, so it needs --yes. Prints the new document&apos;s unique ID.</source>
        <translation>Añade el documento de un archivo de documento de Tabo; la aplicación avisa antes, así que necesita --yes. Muestra el identificador único del documento nuevo.</translation>
    </message>
</context>
<context>
    <name>ItemCommands</name>
    <message>
        <source>The selected invoice is marked as already sent. If you really need to make changes, please set its status back to &apos;Created&apos; first. Then you will also be able to resend the modified invoice.</source>
        <translation>La factura seleccionada ya está marcada como enviada. Si de verdad necesita cambiarla, vuelva primero su estado a “Creada”. Después podrá reenviar la factura modificada.</translation>
    </message>
    <message>
        <source>The %1 “%2” is not a number.</source>
        <translation>%1 “%2” no es un número.</translation>
    </message>
    <message>
        <source>rate of the first tax</source>
        <translation>tipo del primer impuesto</translation>
    </message>
    <message>
        <source>rate of the second tax</source>
        <translation>tipo del segundo impuesto</translation>
    </message>
    <message>
        <source>rate of the third tax</source>
        <translation>tipo del tercer impuesto</translation>
    </message>
    <message>
        <source>net amount</source>
        <translation>importe neto</translation>
    </message>
    <message>
        <source>The catalogue entry is no longer there.</source>
        <translation>La entrada del catálogo ya no existe.</translation>
    </message>
    <message>
        <source>A catalogue entry has no field “%1” to change.</source>
        <translation>Una entrada del catálogo no tiene ningún campo “%1” que cambiar.</translation>
    </message>
    <message>
        <source>The price is not a number.</source>
        <translation>El precio no es un número.</translation>
    </message>
    <message>
        <source>Delete from Catalogue</source>
        <translation>Eliminar del catálogo</translation>
    </message>
    <message>
        <source>Delete %1 from the catalogue? Lines already written with %2 stay as they are.</source>
        <translation>¿Eliminar %1 del catálogo? Las líneas ya escritas con %2 se quedan como están.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>There is no document to add the line to.</source>
        <translation>No hay ningún documento al que añadir la línea.</translation>
    </message>
    <message>
        <source>Add Line</source>
        <translation>Añadir línea</translation>
    </message>
    <message>
        <source>Delete Line</source>
        <translation>Eliminar línea</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>¡Error!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Delete Item</source>
        <translation>Eliminar artículo</translation>
    </message>
    <message>
        <source>Deleting items is permanent and cannot be undone. Do you really want to delete the selected item?</source>
        <translation>Eliminar artículos es definitivo y no se puede deshacer. ¿Seguro que quiere eliminar el artículo seleccionado?</translation>
    </message>
    <message>
        <source>There is no line to change.</source>
        <translation>No hay ninguna línea que cambiar.</translation>
    </message>
    <message>
        <source>A line has no field “%1”.</source>
        <translation>Una línea no tiene ningún campo “%1”.</translation>
    </message>
    <message>
        <source>Edit Line</source>
        <translation>Editar línea</translation>
    </message>
    <message>
        <source>The value “%1” does not fit the field “%2”.</source>
        <translation>El valor “%1” no cabe en el campo “%2”.</translation>
    </message>
    <message>
        <source>There is no document to add the shipping to.</source>
        <translation>No hay ningún documento al que añadir el envío.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Envío</translation>
    </message>
    <message>
        <source>shipping amount</source>
        <translation>importe del envío</translation>
    </message>
    <message>
        <source>There is no document to add the discount to.</source>
        <translation>No hay ningún documento al que añadir el descuento.</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Descuento</translation>
    </message>
    <message>
        <source>discount amount</source>
        <translation>importe del descuento</translation>
    </message>
    <message>
        <source>discount percentage</source>
        <translation>porcentaje de descuento</translation>
    </message>
    <message>
        <source>The %1 “%2” is too large; it can be at most about 3.4e38.</source>
        <translation>%1 “%2” es demasiado grande; como máximo puede ser unos 3,4e38.</translation>
    </message>
    <message>
        <source>The %1 is empty; please enter a number.</source>
        <translation>%1 está vacío; introduzca un número.</translation>
    </message>
</context>
<context>
    <name>KeyedArchive</name>
    <message>
        <source>nested deeper than %1 levels</source>
        <translation>anidado a más de %1 niveles</translation>
    </message>
    <message>
        <source>cannot archive a value of type %1</source>
        <translation>no se puede archivar un valor de tipo %1</translation>
    </message>
    <message>
        <source>invalid date</source>
        <translation>fecha no válida</translation>
    </message>
    <message>
        <source>object without a class</source>
        <translation>objeto sin clase</translation>
    </message>
    <message>
        <source>damaged class entry</source>
        <translation>entrada de clase dañada</translation>
    </message>
    <message>
        <source>expected an object reference</source>
        <translation>se esperaba una referencia de objeto</translation>
    </message>
    <message>
        <source>reference to a missing object</source>
        <translation>referencia a un objeto que falta</translation>
    </message>
    <message>
        <source>cyclic object reference</source>
        <translation>referencia de objeto cíclica</translation>
    </message>
    <message>
        <source>malformed object</source>
        <translation>objeto mal formado</translation>
    </message>
    <message>
        <source>dictionary with unequal keys and values</source>
        <translation>diccionario con distinto número de claves y valores</translation>
    </message>
    <message>
        <source>too many values</source>
        <translation>demasiados valores</translation>
    </message>
    <message>
        <source>damaged string</source>
        <translation>cadena dañada</translation>
    </message>
    <message>
        <source>damaged date</source>
        <translation>fecha dañada</translation>
    </message>
    <message>
        <source>damaged data</source>
        <translation>datos dañados</translation>
    </message>
    <message>
        <source>not a keyed archive</source>
        <translation>no es un archivo con claves</translation>
    </message>
    <message>
        <source>the archive&apos;s root is empty or of an unknown class</source>
        <translation>la raíz del archivo está vacía o es de una clase desconocida</translation>
    </message>
</context>
<context>
    <name>ListCommand</name>
    <message>
        <source>List the documents shown by a filter (0 all, 1 sent, 2 overdue or partly paid, 3 paid, 4 quotes, 5-8 the last 12 hours, 3.5, 15.5, 182.5 days) and the summary.</source>
        <translation>Lista los documentos de un filtro (0 todos, 1 enviados, 2 vencidos o pagados en parte, 3 pagados, 4 presupuestos, 5-8 las últimas 12 horas, 3,5, 15,5, 182,5 días) y el resumen.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>Mostrar JSON.</translation>
    </message>
</context>
<context>
    <name>MailHandoff</name>
    <message>
        <source>No e-mail program is set up on this computer.</source>
        <translation>No hay ningún programa de correo configurado en este ordenador.</translation>
    </message>
    <message>
        <source>The PDF to attach could not be found.</source>
        <translation>No se encontró el PDF que adjuntar.</translation>
    </message>
    <message>
        <source>The e-mail program did not accept the new message.</source>
        <translation>El programa de correo no aceptó el mensaje nuevo.</translation>
    </message>
    <message>
        <source>The e-mail program could not be asked to write the message.</source>
        <translation>No se pudo pedir al programa de correo que escribiera el mensaje.</translation>
    </message>
</context>
<context>
    <name>Matching</name>
    <message>
        <source>%1 more than is due.</source>
        <translation>%1 más de lo pendiente.</translation>
    </message>
    <message>
        <source>Partly paid: %1 of %2.</source>
        <translation>Pagada en parte: %1 de %2.</translation>
    </message>
    <message>
        <source>Taken in from an earlier statement.</source>
        <translation>Registrado desde un extracto anterior.</translation>
    </message>
    <message>
        <source>The text names invoice %1 and the amount is what it owes.</source>
        <translation>El texto nombra la factura %1 y el importe es lo que debe.</translation>
    </message>
    <message>
        <source>The text names invoice %1.</source>
        <translation>El texto nombra la factura %1.</translation>
    </message>
    <message>
        <source>The text names %1 open invoices.</source>
        <translation>El texto nombra %1 facturas abiertas.</translation>
    </message>
    <message>
        <source>The only open invoice of exactly this amount.</source>
        <translation>La única factura abierta de exactamente este importe.</translation>
    </message>
    <message>
        <source>This amount, from this client.</source>
        <translation>Este importe, de este cliente.</translation>
    </message>
    <message>
        <source>%1 open invoices owe exactly this amount.</source>
        <translation>%1 facturas abiertas deben exactamente este importe.</translation>
    </message>
    <message>
        <source>The only open invoice of this client.</source>
        <translation>La única factura abierta de este cliente.</translation>
    </message>
    <message>
        <source>This client has %1 open invoices, none of this amount.</source>
        <translation>Este cliente tiene %1 facturas abiertas, ninguna de este importe.</translation>
    </message>
    <message>
        <source>No open invoice fits.</source>
        <translation>Ninguna factura abierta encaja.</translation>
    </message>
</context>
<context>
    <name>NewCommand</name>
    <message>
        <source>Create a document and print its unique ID.</source>
        <translation>Crea un documento y muestra su identificador único.</translation>
    </message>
    <message>
        <source>Unknown document kind “%1”.</source>
        <translation>Tipo de documento desconocido “%1”.</translation>
    </message>
</context>
<context>
    <name>NotificationCommands</name>
    <message>
        <source>Notification Already Created</source>
        <translation>Notificación ya creada</translation>
    </message>
    <message>
        <source>You&apos;ve already created a notification for this invoice. Do you really want to create another one?</source>
        <translation>Ya ha creado una notificación para esta factura. ¿Seguro que quiere crear otra?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>There is no invoice to remind of.</source>
        <translation>No hay ninguna factura que recordar.</translation>
    </message>
    <message>
        <source>There is no notification %1.</source>
        <translation>No existe la notificación %1.</translation>
    </message>
    <message>
        <source>The notifications stay scheduled.</source>
        <translation>Las notificaciones siguen programadas.</translation>
    </message>
    <message>
        <source>The notification service did not show %1 of the reminders.</source>
        <translation>El servicio de notificaciones no mostró %1 de los recordatorios.</translation>
    </message>
    <message>
        <source>They stay scheduled.</source>
        <translation>Siguen programados.</translation>
    </message>
    <message>
        <source>Reminders While Tabo Is Closed</source>
        <translation>Recordatorios con Tabo cerrado</translation>
    </message>
    <message>
        <source>Tabo shows this reminder when its moment comes while Tabo is open. Shall a small timer of your desktop session look for due reminders every hour, so that they also arrive while Tabo is closed? You can remove it at any time in Preferences ▸ Data.</source>
        <translation>Tabo muestra este recordatorio a su hora si Tabo está abierto. ¿Debe un pequeño temporizador de su sesión de escritorio buscar recordatorios pendientes cada hora, para que lleguen también con Tabo cerrado? Puede quitarlo cuando quiera en Preferencias ▸ Datos.</translation>
    </message>
    <message>
        <source>Install Timer</source>
        <translation>Instalar temporizador</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Ahora no</translation>
    </message>
</context>
<context>
    <name>NotificationSchedule</name>
    <message>
        <source>The notification could not be saved.</source>
        <translation>No se pudo guardar la notificación.</translation>
    </message>
    <message>
        <source>It has no date.</source>
        <translation>No tiene fecha.</translation>
    </message>
</context>
<context>
    <name>Notifier</name>
    <message>
        <source>Notifications cannot be shown: there is no desktop session bus (D-Bus) here.</source>
        <translation>No se pueden mostrar notificaciones: aquí no hay bus de sesión (D-Bus).</translation>
    </message>
    <message>
        <source>Notifications cannot be shown: no notification service runs on this desktop.</source>
        <translation>No se pueden mostrar notificaciones: no hay ningún servicio de notificaciones en este escritorio.</translation>
    </message>
    <message>
        <source>Show Invoice</source>
        <translation>Mostrar factura</translation>
    </message>
</context>
<context>
    <name>NotifyCommand</name>
    <message>
        <source>“%1” is not an ISO 8601 date or moment (2026-12-03 or 2026-12-03T09:00).</source>
        <translation>“%1” no es una fecha o momento ISO 8601 (2026-12-03 o 2026-12-03T09:00).</translation>
    </message>
    <message>
        <source>Schedule a reminder of a document: by default three days after it is due, titled with its title and number, with the address&apos;s first line as subtitle. A second reminder of the same document needs --yes. Prints the reminder&apos;s number.</source>
        <translation>Programa un recordatorio de un documento: por defecto tres días después del vencimiento, con su título y número como título y la primera línea de la dirección como subtítulo. Un segundo recordatorio del mismo documento necesita --yes. Muestra el número del recordatorio.</translation>
    </message>
    <message>
        <source>When to show it.</source>
        <translation>Cuándo mostrarlo.</translation>
    </message>
    <message>
        <source>Title.</source>
        <translation>Título.</translation>
    </message>
    <message>
        <source>Subtitle.</source>
        <translation>Subtítulo.</translation>
    </message>
    <message>
        <source>Informative text.</source>
        <translation>Texto informativo.</translation>
    </message>
    <message>
        <source> The reminder is kept and shown by the first Tabo that can.</source>
        <translation> El recordatorio se conserva y lo mostrará el primer Tabo que pueda.</translation>
    </message>
    <message>
        <source>The scheduled reminders: list them, cancel one by its number, or show those whose moment has come (what the reminder timer runs every hour). With --wait the run stays up to SECONDS after showing something, so that a click opens Tabo on the invoice.</source>
        <translation>Los recordatorios programados: listarlos, cancelar uno por su número o mostrar los que han llegado a su hora (lo que el temporizador ejecuta cada hora). Con --wait la ejecución sigue hasta SEGUNDOS después de mostrar algo, para que un clic abra Tabo en la factura.</translation>
    </message>
    <message>
        <source>Missing list, cancel or deliver-due.</source>
        <translation>Falta list, cancel o deliver-due.</translation>
    </message>
    <message>
        <source>Unknown “%1”: list, cancel or deliver-due.</source>
        <translation>Desconocido “%1”: list, cancel o deliver-due.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>Mostrar JSON.</translation>
    </message>
    <message>
        <source>“%1” is not a reminder&apos;s number (see “notifications list”).</source>
        <translation>“%1” no es un número de recordatorio (vea “notifications list”).</translation>
    </message>
    <message>
        <source>Stay for clicks.</source>
        <translation>Permanecer abierto para los clics.</translation>
    </message>
    <message>
        <source>1 reminder shown.
</source>
        <translation>1 recordatorio mostrado.
</translation>
    </message>
    <message>
        <source>--wait takes a number of seconds.</source>
        <translation>--wait admite un número de segundos.</translation>
    </message>
    <message>
        <source>Repeated invoices written: %1.</source>
        <translation>Facturas periódicas emitidas: %1.</translation>
    </message>
</context>
<context>
    <name>NumberCounters</name>
    <message>
        <source>The counter “%1” could not be stored: %2</source>
        <translation>No se pudo guardar el contador “%1”: %2</translation>
    </message>
</context>
<context>
    <name>Numbering</name>
    <message>
        <source>The pattern needs %COUNT%, or every document gets the same number.</source>
        <translation>El patrón necesita %COUNT%; si no, todos los documentos reciben el mismo número.</translation>
    </message>
</context>
<context>
    <name>OutputCommands</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>The PDF file “%1” could not be read.</source>
        <translation>No se pudo leer el archivo PDF “%1”.</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>¡Error!</translation>
    </message>
    <message>
        <source>No design available. Please download or create a design.</source>
        <translation>No hay ningún diseño disponible. Descargue o cree un diseño.</translation>
    </message>
    <message>
        <source>Print Invoice</source>
        <translation>Imprimir factura</translation>
    </message>
    <message>
        <source>Export Invoice As PDF File</source>
        <translation>Exportar factura como archivo PDF</translation>
    </message>
    <message>
        <source>Send Invoice As Email Attachment</source>
        <translation>Enviar factura como adjunto de correo</translation>
    </message>
    <message>
        <source>Export Invoice As Document</source>
        <translation>Exportar factura como documento</translation>
    </message>
    <message>
        <source>Export As PDF File</source>
        <translation>Exportar como archivo PDF</translation>
    </message>
    <message>
        <source>Export As E-Invoice (XRechnung)</source>
        <translation>Exportar como factura electrónica (XRechnung)</translation>
    </message>
    <message>
        <source>Export As PDF With E-Invoice</source>
        <translation>Exportar como PDF con factura electrónica</translation>
    </message>
    <message>
        <source>The E-Mail Could Not Be Written</source>
        <translation>No se pudo escribir el correo</translation>
    </message>
    <message>
        <source>

You can save the PDF and attach it to a message yourself, or open the folder that holds it.</source>
        <translation>

Puede guardar el PDF y adjuntarlo usted mismo a un mensaje, o abrir la carpeta que lo contiene.</translation>
    </message>
    <message>
        <source>Save PDF…</source>
        <translation>Guardar PDF…</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Mark as Sent</source>
        <translation>Marcar como enviada</translation>
    </message>
    <message>
        <source>The design “%1” laid the document out on %2 pages, far more than its lines can fill, so no PDF was made. Choose another design or fix this one in Preferences ▸ Designs.</source>
        <translation>El diseño “%1” repartió el documento en %2 páginas, muchas más de las que pueden llenar sus líneas, así que no se creó ningún PDF. Elija otro diseño o repare este en Preferencias ▸ Diseños.</translation>
    </message>
    <message>
        <source>Ooops!</source>
        <translation>¡Uy!</translation>
    </message>
    <message>
        <source>Something went really wrong while creating the design preview.</source>
        <translation>Algo salió muy mal al crear la vista previa del diseño.</translation>
    </message>
    <message>
        <source>Something went really wrong while creating the preview.</source>
        <translation>Algo salió muy mal al crear la vista previa.</translation>
    </message>
</context>
<context>
    <name>OutputRun</name>
    <message>
        <source>No design titled “%1”.</source>
        <translation>No hay ningún diseño titulado “%1”.</translation>
    </message>
    <message>
        <source>%1 designs are titled “%2”; give its unique ID instead: %3.</source>
        <translation>%1 diseños se titulan “%2”; indique en su lugar su identificador único: %3.</translation>
    </message>
    <message>
        <source>“%1” is the ID of %2 designs; give its title instead.</source>
        <translation>“%1” es el identificador de %2 diseños; indique en su lugar su título.</translation>
    </message>
</context>
<context>
    <name>PaymentCommands</name>
    <message>
        <source>No database is open.</source>
        <translation>No hay ninguna base de datos abierta.</translation>
    </message>
    <message>
        <source>Import Bank Statement</source>
        <translation>Importar extracto bancario</translation>
    </message>
    <message>
        <source>Payments</source>
        <translation>Pagos</translation>
    </message>
</context>
<context>
    <name>PaymentLedger</name>
    <message>
        <source>The payments taken in could not be read or written: %1</source>
        <translation>No se pudieron leer o escribir los pagos registrados: %1</translation>
    </message>
</context>
<context>
    <name>PaymentsCommand</name>
    <message>
        <source>Print JSON.</source>
        <translation>Mostrar JSON.</translation>
    </message>
    <message>
        <source>Take in the sure matches.</source>
        <translation>Registrar las asignaciones seguras.</translation>
    </message>
    <message>
        <source>Unknown “%1”: import.</source>
        <translation>Desconocido “%1”: import.</translation>
    </message>
    <message>
        <source>Payments taken in: %1.</source>
        <translation>Pagos registrados: %1.</translation>
    </message>
    <message>
        <source>Read a bank statement (CAMT.053, CAMT.054, MT940 or CSV) and match its credits against the open invoices: sure (the text names the invoice and the amount is what it owes), proposed, ambiguous, none, or imported before. --apply takes in the sure matches: the invoice is paid or partly paid. A booking is never taken in twice. --columns names the columns of a CSV export whose headings are not recognised (date, amount or credit and debit, currency, payer, iban, text, reference; by number or heading); they are remembered for files laid out like it.</source>
        <translation>Leer un extracto bancario (CAMT.053, CAMT.054, MT940 o CSV) y casar sus abonos con las facturas pendientes: seguro (el texto nombra la factura y el importe es lo que debe), propuesto, ambiguo, ninguno o importado antes. --apply aplica los casos seguros: la factura queda pagada o pagada en parte. Un apunte nunca se aplica dos veces. --columns nombra las columnas de una exportación CSV cuyos encabezados no se reconocen (date, amount o credit y debit, currency, payer, iban, text, reference; por número o encabezado); se recuerdan para los archivos con la misma disposición.</translation>
    </message>
    <message>
        <source>The columns of a CSV statement.</source>
        <translation>Las columnas de un extracto CSV.</translation>
    </message>
</context>
<context>
    <name>PrefRules</name>
    <message>
        <source>The counter</source>
        <translation>El contador</translation>
    </message>
    <message>
        <source>The number of days</source>
        <translation>El número de días</translation>
    </message>
    <message>
        <source>The rate cannot be below 0 %.</source>
        <translation>El tipo no puede ser inferior al 0 %.</translation>
    </message>
    <message>
        <source>The rate cannot be above 1000 % (rates are fractions: 0.19 is 19 %).</source>
        <translation>El tipo no puede superar el 1000 % (los tipos son fracciones: 0,19 es el 19 %).</translation>
    </message>
    <message>
        <source>The folder “%1” does not exist.</source>
        <translation>La carpeta “%1” no existe.</translation>
    </message>
    <message>
        <source>%1 cannot be below 0.</source>
        <translation>%1 no puede ser menor que 0.</translation>
    </message>
    <message>
        <source>%1 cannot be above %2.</source>
        <translation>%1 no puede ser mayor que %2.</translation>
    </message>
    <message>
        <source>“%1” is no region; use a name such as de_DE or fr_FR.</source>
        <translation>“%1” no es una región; use un nombre como es_ES o fr_FR.</translation>
    </message>
    <message>
        <source>“%1” is not an absolute path; name the folder from the root (/…).</source>
        <translation>“%1” no es una ruta absoluta; indique la carpeta desde la raíz (/…).</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>It cannot be read (%1).</source>
        <translation>No se puede leer (%1).</translation>
    </message>
    <message>
        <source>It holds binary data.</source>
        <translation>Contiene datos binarios.</translation>
    </message>
    <message>
        <source>It is not text.</source>
        <translation>No es texto.</translation>
    </message>
    <message>
        <source>Line %1 is neither a section nor a setting.</source>
        <translation>La línea %1 no es ni una sección ni un ajuste.</translation>
    </message>
    <message>
        <source>The settings file “%1” is damaged. %2 Tabo has left it as it is.%3</source>
        <translation>El archivo de ajustes “%1” está dañado. %2 Tabo lo ha dejado como estaba.%3</translation>
    </message>
    <message>
        <source>The settings file “%1” cannot be read. Tabo has left it as it is.</source>
        <translation>No se puede leer el archivo de ajustes “%1”. Tabo lo ha dejado como estaba.</translation>
    </message>
    <message>
        <source>There are no kept settings (“%1”) to restore.</source>
        <translation>No hay ajustes guardados (“%1”) que restaurar.</translation>
    </message>
    <message>
        <source>The kept settings “%1” are damaged too: %2</source>
        <translation>Los ajustes guardados “%1” también están dañados: %2</translation>
    </message>
    <message>
        <source>unknown preference key “%1”</source>
        <translation>clave de preferencia desconocida “%1”</translation>
    </message>
    <message>
        <source>“%1” is not a valid %2 for %3</source>
        <translation>“%1” no es un valor válido de %2 para %3</translation>
    </message>
    <message>
        <source>readable file</source>
        <translation>archivo legible</translation>
    </message>
    <message>
        <source>The settings file is locked by another program (process %1) that has held it for more than %2 seconds. Quit that program (or end process %1) and try again; nothing was changed.</source>
        <translation>El archivo de ajustes está bloqueado por otro programa (proceso %1) que lo mantiene desde hace más de %2 segundos. Cierre ese programa (o termine el proceso %1) y vuelva a intentarlo; no se cambió nada.</translation>
    </message>
    <message>
        <source>The settings file “%1” is not a file (a folder or something else stands in its place). Tabo has left it as it is; move it away and start again.</source>
        <translation>El archivo de ajustes “%1” no es un archivo (hay una carpeta u otra cosa en su lugar). Tabo lo ha dejado como estaba; apártelo y vuelva a empezar.</translation>
    </message>
    <message>
        <source> The last good settings are kept in “%1”; restore them with tabo-cli prefs restore.</source>
        <translation> Los últimos ajustes correctos se guardan en “%1”; restáurelos con tabo-cli prefs restore.</translation>
    </message>
    <message>
        <source>“%1” could not be moved aside; nothing was restored.</source>
        <translation>No se pudo apartar “%1”; no se restauró nada.</translation>
    </message>
    <message>
        <source>“%1” could not be written; nothing was restored.</source>
        <translation>No se pudo escribir “%1”; no se restauró nada.</translation>
    </message>
    <message>
        <source>The settings file “%1” could not be written (the disk may be full or the file read-only); the change was not stored.</source>
        <translation>No se pudo escribir el archivo de ajustes “%1” (puede que el disco esté lleno o el archivo sea de solo lectura); el cambio no se guardó.</translation>
    </message>
</context>
<context>
    <name>PrefsCommand</name>
    <message>
        <source>Print JSON.</source>
        <translation>Mostrar JSON.</translation>
    </message>
    <message>
        <source>Restored the last good settings from “%1”.</source>
        <translation>Se restauraron los últimos ajustes correctos desde “%1”.</translation>
    </message>
    <message>
        <source>Unknown preference key “%1”.</source>
        <translation>Clave de preferencia desconocida “%1”.</translation>
    </message>
    <message>
        <source>Name the folder first: tabo-cli prefs set customDatabasePath FOLDER.</source>
        <translation>Indique primero la carpeta: tabo-cli prefs set customDatabasePath CARPETA.</translation>
    </message>
    <message>
        <source>“%1” is not a number.</source>
        <translation>“%1” no es un número.</translation>
    </message>
    <message>
        <source>New documents are calculated to the cent. %1 (tabo-cli prefs set centExactTotals false keeps the classic calculation.)</source>
        <translation>Los nuevos documentos se calculan al céntimo. %1 (tabo-cli prefs set centExactTotals false mantiene el cálculo clásico.)</translation>
    </message>
    <message>
        <source>The language defaults %1 could not be read.</source>
        <translation>No se pudieron leer los valores de idioma %1.</translation>
    </message>
    <message>
        <source>List every preference with its type and value (stored, or the default); read or write one; install the language defaults (0 English, 1 German, 2 French, 3 Spanish); put the last good settings (Tabo.conf.bak) back in place of a damaged file.</source>
        <translation>Lista cada preferencia con su tipo y valor (guardado o predeterminado); lee o escribe una; instala los valores de idioma (0 inglés, 1 alemán, 2 francés, 3 español); repone los últimos ajustes correctos (Tabo.conf.bak) en lugar de un archivo dañado.</translation>
    </message>
    <message>
        <source>--json belongs to “prefs list”.</source>
        <translation>--json corresponde a “prefs list”.</translation>
    </message>
    <message>
        <source>The database was not moved; the settings still name where it is.</source>
        <translation>La base de datos no se movió; los ajustes siguen indicando dónde está.</translation>
    </message>
    <message>
        <source>No language defaults for %1; nothing was installed.</source>
        <translation>No hay valores de idioma para %1; no se instaló nada.</translation>
    </message>
</context>
<context>
    <name>PrintCommand</name>
    <message>
        <source>Printer to use.</source>
        <translation>Impresora que usar.</translation>
    </message>
    <message>
        <source>Print a document (default printer unless --printer); an invoice is then marked as sent when markInvoiceAsSent is on.</source>
        <translation>Imprime un documento (impresora predeterminada salvo con --printer); una factura se marca entonces como enviada si markInvoiceAsSent está activo.</translation>
    </message>
    <message>
        <source>--printer needs a printer name.</source>
        <translation>--printer necesita un nombre de impresora.</translation>
    </message>
</context>
<context>
    <name>PrintSystem</name>
    <message>
        <source>The print system did not answer in time.</source>
        <translation>El sistema de impresión no respondió a tiempo.</translation>
    </message>
    <message>
        <source>lp ended with code %1</source>
        <translation>lp terminó con el código %1</translation>
    </message>
    <message>
        <source>The document could not be printed: %1</source>
        <translation>No se pudo imprimir el documento: %1</translation>
    </message>
    <message>
        <source>The print system could not be reached: the program &quot;lp&quot; was not found.</source>
        <translation>No se puede acceder al sistema de impresión: no se encontró el programa &quot;lp&quot;.</translation>
    </message>
</context>
<context>
    <name>PrinterDocument</name>
    <message>
        <source>Error: Recursion</source>
        <translation>Error: recursión</translation>
    </message>
</context>
<context>
    <name>PropertyList</name>
    <message>
        <source>empty property list</source>
        <translation>lista de propiedades vacía</translation>
    </message>
    <message>
        <source>property list too large</source>
        <translation>lista de propiedades demasiado grande</translation>
    </message>
    <message>
        <source>unsupported binary property list version</source>
        <translation>versión de lista de propiedades binaria no admitida</translation>
    </message>
    <message>
        <source>not a property list</source>
        <translation>no es una lista de propiedades</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>no se puede abrir %1: %2</translation>
    </message>
</context>
<context>
    <name>ProtectedFiles</name>
    <message>
        <source>the database</source>
        <translation>la base de datos</translation>
    </message>
    <message>
        <source>a file of the database</source>
        <translation>un archivo de la base de datos</translation>
    </message>
    <message>
        <source>the settings file</source>
        <translation>el archivo de ajustes</translation>
    </message>
    <message>
        <source>the settings file&apos;s lock</source>
        <translation>el bloqueo del archivo de ajustes</translation>
    </message>
    <message>
        <source>the kept copy of the settings</source>
        <translation>la copia guardada de los ajustes</translation>
    </message>
    <message>
        <source>an automatic backup</source>
        <translation>una copia automática</translation>
    </message>
    <message>
        <source>The file “%1” could not be written: %2</source>
        <translation>No se pudo escribir el archivo “%1”: %2</translation>
    </message>
    <message>
        <source>“%1” is %2 (%3). Tabo never writes anything else onto it; please choose another file.</source>
        <translation>“%1” es %2 (%3). Tabo nunca escribe otra cosa encima; elija otro archivo.</translation>
    </message>
</context>
<context>
    <name>QVPreferencePanel</name>
    <message>
        <source>Company</source>
        <translation>Empresa</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Factura</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Impuestos</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Plantilla</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Diseño</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Región</translation>
    </message>
    <message>
        <source>Clients</source>
        <translation>Clientes</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Datos</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Presupuesto</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Recordatorio</translation>
    </message>
    <message>
        <source>Slip</source>
        <translation>Albarán</translation>
    </message>
</context>
<context>
    <name>Reader</name>
    <message>
        <source>The file nests its elements more deeply than any e-invoice does.</source>
        <translation>El archivo anida sus elementos más profundamente que cualquier factura electrónica.</translation>
    </message>
    <message>
        <source>The CII file has no trade transaction: it holds no invoice.</source>
        <translation>El archivo CII no tiene transacción comercial: no contiene ninguna factura.</translation>
    </message>
    <message>
        <source>The CII file has no settlement: its totals are missing.</source>
        <translation>El archivo CII no tiene liquidación: faltan sus totales.</translation>
    </message>
    <message>
        <source>The invoice states no grand total or amount due: its totals are missing.</source>
        <translation>La factura no indica total ni importe pendiente: faltan sus totales.</translation>
    </message>
    <message>
        <source>The invoice states no total with VAT or amount due: its totals are missing.</source>
        <translation>La factura no indica total con IVA ni importe pendiente: faltan sus totales.</translation>
    </message>
    <message>
        <source>The PDF carries no e-invoice: it has no XML attachment.</source>
        <translation>El PDF no lleva factura electrónica: no tiene adjunto XML.</translation>
    </message>
    <message>
        <source>The PDF&apos;s e-invoice attachment cannot be unpacked.</source>
        <translation>No se puede descomprimir el adjunto de factura electrónica del PDF.</translation>
    </message>
    <message>
        <source>The PDF is too large to be read.</source>
        <translation>El PDF es demasiado grande para leerlo.</translation>
    </message>
    <message>
        <source>The PDF cannot be read: %1</source>
        <translation>No se puede leer el PDF: %1</translation>
    </message>
    <message>
        <source>This is not an e-invoice: its root is “%1” in the namespace “%2”, not a CII or UBL invoice.</source>
        <translation>No es una factura electrónica: su raíz es “%1” en el espacio de nombres “%2”, no una factura CII o UBL.</translation>
    </message>
    <message>
        <source>The e-invoice states amounts that are no readable amounts of money: %1.</source>
        <translation>La factura electrónica indica importes que no son cantidades de dinero legibles: %1.</translation>
    </message>
    <message>
        <source>There is no file “%1”.</source>
        <translation>No existe el archivo “%1”.</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2</source>
        <translation>No se puede leer “%1”: %2</translation>
    </message>
    <message>
        <source>Line %1 (%2) is %3, but its quantity %4 × price %5 makes %6.</source>
        <translation>La línea %1 (%2) es %3, pero su cantidad %4 × precio %5 da %6.</translation>
    </message>
    <message>
        <source>The sum of the lines</source>
        <translation>La suma de las líneas</translation>
    </message>
    <message>
        <source>The allowances</source>
        <translation>Los descuentos</translation>
    </message>
    <message>
        <source>The charges</source>
        <translation>Los recargos</translation>
    </message>
    <message>
        <source>The total without VAT</source>
        <translation>El total sin IVA</translation>
    </message>
    <message>
        <source>The VAT</source>
        <translation>El IVA</translation>
    </message>
    <message>
        <source>The total with VAT</source>
        <translation>El total con IVA</translation>
    </message>
    <message>
        <source>The amount due</source>
        <translation>El importe pendiente</translation>
    </message>
    <message>
        <source>Tax number %1</source>
        <translation>Número fiscal %1</translation>
    </message>
    <message>
        <source>Contact: %1</source>
        <translation>Contacto: %1</translation>
    </message>
    <message>
        <source>Credit note</source>
        <translation>Factura rectificativa</translation>
    </message>
    <message>
        <source> in a PDF</source>
        <translation> en un PDF</translation>
    </message>
    <message>
        <source>Date %1</source>
        <translation>Fecha %1</translation>
    </message>
    <message>
        <source>due %1</source>
        <translation>vence %1</translation>
    </message>
    <message>
        <source>delivered %1</source>
        <translation>entregado %1</translation>
    </message>
    <message>
        <source>buyer reference %1</source>
        <translation>referencia del comprador %1</translation>
    </message>
    <message>
        <source>for invoice %1 %2</source>
        <translation>para la factura %1 %2</translation>
    </message>
    <message>
        <source>Sum of lines</source>
        <translation>Suma de las líneas</translation>
    </message>
    <message>
        <source>Total without VAT</source>
        <translation>Total sin IVA</translation>
    </message>
    <message>
        <source>VAT %1 on %2%3</source>
        <translation>IVA %1 sobre %2%3</translation>
    </message>
    <message>
        <source>Total with VAT</source>
        <translation>Total con IVA</translation>
    </message>
    <message>
        <source>Paid in advance</source>
        <translation>Pagado por adelantado</translation>
    </message>
    <message>
        <source>Paid by third parties</source>
        <translation>Pagado por terceros</translation>
    </message>
    <message>
        <source>Amount due</source>
        <translation>Importe pendiente</translation>
    </message>
    <message>
        <source>The file declares a DTD; e-invoices never do, so it is not read.</source>
        <translation>El archivo declara una DTD; las facturas electrónicas nunca lo hacen, así que no se lee.</translation>
    </message>
    <message>
        <source>The PDF&apos;s e-invoice unpacks to more than %1 MB; e-invoices are far smaller, so it is not read.</source>
        <translation>La factura electrónica del PDF ocupa más de %1 MB al descomprimirla; las facturas electrónicas son mucho más pequeñas, así que no se lee.</translation>
    </message>
    <message>
        <source>“%1” is %2 MB large; e-invoices are far smaller, so it is not read.</source>
        <translation>“%1” ocupa %2 MB; las facturas electrónicas son mucho más pequeñas, así que no se lee.</translation>
    </message>
    <message>
        <source>%1 is %2, but its parts add up to %3.</source>
        <translation>%1 es %2, pero sus partes suman %3.</translation>
    </message>
    <message>
        <source>VAT ID %1</source>
        <translation>NIF-IVA %1</translation>
    </message>
    <message>
        <source>E-invoices: %1</source>
        <translation>Facturas electrónicas: %1</translation>
    </message>
    <message>
        <source>Received e-invoice · %1%2 · %3</source>
        <translation>Factura electrónica recibida · %1%2 · %3</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Factura</translation>
    </message>
    <message>
        <source>Seller</source>
        <translation>Vendedor</translation>
    </message>
    <message>
        <source>Buyer</source>
        <translation>Comprador</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Artículo</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Precio</translation>
    </message>
    <message>
        <source>VAT</source>
        <translation>IVA</translation>
    </message>
    <message>
        <source>Net</source>
        <translation>Neto</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Recargo</translation>
    </message>
    <message>
        <source>Allowance</source>
        <translation>Descuento</translation>
    </message>
    <message>
        <source>Rounding</source>
        <translation>Redondeo</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Pago</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Its sums do not add up</source>
        <translation>Sus totales no cuadran</translation>
    </message>
</context>
<context>
    <name>Recurrence</name>
    <message>
        <source>month</source>
        <translation>mes</translation>
    </message>
    <message>
        <source>months</source>
        <translation>meses</translation>
    </message>
    <message>
        <source>quarter</source>
        <translation>trimestre</translation>
    </message>
    <message>
        <source>quarters</source>
        <translation>trimestres</translation>
    </message>
    <message>
        <source>year</source>
        <translation>año</translation>
    </message>
    <message>
        <source>years</source>
        <translation>años</translation>
    </message>
    <message>
        <source>week</source>
        <translation>semana</translation>
    </message>
    <message>
        <source>weeks</source>
        <translation>semanas</translation>
    </message>
    <message>
        <source>“%1” is no interval: say month, quarter, year or a number of weeks (“2 weeks”).</source>
        <translation>«%1» no es un intervalo: indique mes, trimestre, año o un número de semanas («2 semanas»).</translation>
    </message>
    <message>
        <source>An invoice cannot repeat every %1 %2; the interval must be at least 1.</source>
        <translation>Una factura no puede repetirse cada %1 %2; el intervalo debe ser al menos 1.</translation>
    </message>
    <message>
        <source>A repeated invoice needs the day of its first invoice.</source>
        <translation>Una factura periódica necesita el día de su primera factura.</translation>
    </message>
    <message>
        <source>The last day (%1) lies before the first (%2).</source>
        <translation>El último día (%1) es anterior al primero (%2).</translation>
    </message>
    <message>
        <source>The number of invoices cannot be negative.</source>
        <translation>El número de facturas no puede ser negativo.</translation>
    </message>
    <message>
        <source>every week</source>
        <translation>cada semana</translation>
    </message>
    <message>
        <source>every %1 weeks</source>
        <translation>cada %1 semanas</translation>
    </message>
    <message>
        <source>every month</source>
        <translation>cada mes</translation>
    </message>
    <message>
        <source>every quarter</source>
        <translation>cada trimestre</translation>
    </message>
    <message>
        <source>every year</source>
        <translation>cada año</translation>
    </message>
    <message>
        <source>every %1 months</source>
        <translation>cada %1 meses</translation>
    </message>
</context>
<context>
    <name>RecurringCommand</name>
    <message>
        <source>month, quarter, year or N weeks.</source>
        <translation>month, quarter, year o N weeks.</translation>
    </message>
    <message>
        <source>The day of the first invoice.</source>
        <translation>El día de la primera factura.</translation>
    </message>
    <message>
        <source>The last day an invoice may fall on.</source>
        <translation>El último día en que puede caer una factura.</translation>
    </message>
    <message>
        <source>How many invoices in all.</source>
        <translation>Cuántas facturas en total.</translation>
    </message>
    <message>
        <source>add: e-mail each invoice when written; run: send those now.</source>
        <translation>add: enviar cada factura por correo al emitirla; run: enviarlas ahora.</translation>
    </message>
    <message>
        <source>Say which invoices would be written; write none.</source>
        <translation>Decir qué facturas se emitirían; no emitir ninguna.</translation>
    </message>
    <message>
        <source>Invoices that repeat. add copies an invoice or a template on every date from --from: numbered by the invoice pattern, dated on its day, %PERIOD% in its texts filled with the period it bills. run writes every date that has come, those missed meanwhile too, each once; with --send it e-mails those whose schedule says so.</source>
        <translation>Facturas que se repiten. add copia una factura o una plantilla en cada fecha desde --from: numerada según el patrón de facturas, fechada en su día, %PERIOD% en sus textos sustituido por el periodo que factura. run emite cada fecha llegada, también las perdidas entretanto, cada una una vez; con --send envía por correo las que su calendario indica.</translation>
    </message>
    <message>
        <source>Unknown “%1”: add, list, pause, resume, remove or run.</source>
        <translation>«%1» desconocido: add, list, pause, resume, remove o run.</translation>
    </message>
    <message>
        <source>%1 takes the number of a repeated invoice, as the list shows it.</source>
        <translation>%1 espera el número de una factura periódica, tal como lo muestra la lista.</translation>
    </message>
    <message>
        <source>add needs --every and --from.</source>
        <translation>add necesita --every y --from.</translation>
    </message>
    <message>
        <source>Give --until or --count, not both.</source>
        <translation>Indique --until o --count, no ambos.</translation>
    </message>
    <message>
        <source>Dates are written as YYYY-MM-DD.</source>
        <translation>Las fechas se escriben AAAA-MM-DD.</translation>
    </message>
    <message>
        <source>--count takes a number of invoices above 0.</source>
        <translation>--count espera un número de facturas mayor que 0.</translation>
    </message>
    <message>
        <source>Repeated invoice %1: %2 %3, the first on %4.</source>
        <translation>Factura periódica %1: %2 %3, la primera el %4.</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pausa</translation>
    </message>
    <message>
        <source>next %1</source>
        <translation>próxima %1</translation>
    </message>
    <message>
        <source>ended</source>
        <translation>terminada</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 emitidas</translation>
    </message>
    <message>
        <source>, e-mailed</source>
        <translation>, por correo</translation>
    </message>
    <message>
        <source>Would write repeated invoice %1 of %2.</source>
        <translation>Emitiría la factura periódica %1 del %2.</translation>
    </message>
</context>
<context>
    <name>RecurringCommands</name>
    <message>
        <source>No database is open.</source>
        <translation>No hay ninguna base de datos abierta.</translation>
    </message>
    <message>
        <source>There is no repeated invoice %1.</source>
        <translation>No existe la factura periódica %1.</translation>
    </message>
    <message>
        <source>“%1” (no longer there)</source>
        <translation>«%1» (ya no existe)</translation>
    </message>
    <message>
        <source>Template “%1”</source>
        <translation>Plantilla «%1»</translation>
    </message>
    <message>
        <source>Invoice %1</source>
        <translation>Factura %1</translation>
    </message>
    <message>
        <source>Invoice %1 (%2)</source>
        <translation>Factura %1 (%2)</translation>
    </message>
    <message>
        <source>“%1” names %2 documents; give the document&apos;s ID instead.</source>
        <translation>«%1» designa %2 documentos; indique en su lugar el ID del documento.</translation>
    </message>
    <message>
        <source>“%1” is a quote; only an invoice or a template repeats.</source>
        <translation>«%1» es un presupuesto; solo se repite una factura o una plantilla.</translation>
    </message>
    <message>
        <source>There is no invoice or template “%1”.</source>
        <translation>No existe ninguna factura ni plantilla «%1».</translation>
    </message>
    <message>
        <source>Repeated invoice %1 is not written: its invoice or template “%2” is no longer there.</source>
        <translation>La factura periódica %1 no se emite: su factura o plantilla «%2» ya no existe.</translation>
    </message>
</context>
<context>
    <name>ReminderTimer</name>
    <message>
        <source>systemd could not be asked (%1 did not start).</source>
        <translation>No se pudo consultar a systemd (%1 no arrancó).</translation>
    </message>
    <message>
        <source>systemd did not answer in time.</source>
        <translation>systemd no respondió a tiempo.</translation>
    </message>
    <message>
        <source>systemd refused: %1</source>
        <translation>systemd rechazó: %1</translation>
    </message>
    <message>
        <source>The reminder timer needs tabo-cli, which is not at “%1”.</source>
        <translation>El temporizador de recordatorios necesita tabo-cli, que no está en “%1”.</translation>
    </message>
    <message>
        <source>The file “%1” could not be written.</source>
        <translation>No se pudo escribir el archivo “%1”.</translation>
    </message>
    <message>
        <source>The reminder timer could not be installed. </source>
        <translation>No se pudo instalar el temporizador de recordatorios. </translation>
    </message>
    <message>
        <source>The file “%1” could not be removed.</source>
        <translation>No se pudo eliminar el archivo “%1”.</translation>
    </message>
</context>
<context>
    <name>RenderCommand</name>
    <message>
        <source>Write a document&apos;s page as HTML or PDF (as a payment reminder or delivery slip with the sheet&apos;s default texts), or one PDF per document, named after its number, into a folder. --design renders through that design instead of the default one.</source>
        <translation>Escribe la página de un documento como HTML o PDF (como recordatorio de pago o albarán con los textos predeterminados de la hoja), o un PDF por documento, con su número como nombre, en una carpeta. --design compone con ese diseño en lugar del predeterminado.</translation>
    </message>
    <message>
        <source>HTML file to write.</source>
        <translation>Archivo HTML que escribir.</translation>
    </message>
    <message>
        <source>PDF file to write.</source>
        <translation>Archivo PDF que escribir.</translation>
    </message>
    <message>
        <source>Folder for one PDF per document.</source>
        <translation>Carpeta para un PDF por documento.</translation>
    </message>
    <message>
        <source>Every document the list shows.</source>
        <translation>Cada documento que muestra la lista.</translation>
    </message>
    <message>
        <source>Filter tag (with --all).</source>
        <translation>Etiqueta de filtro (con --all).</translation>
    </message>
    <message>
        <source>As a payment reminder.</source>
        <translation>Como recordatorio de pago.</translation>
    </message>
    <message>
        <source>As a delivery slip.</source>
        <translation>Como albarán.</translation>
    </message>
    <message>
        <source>Design to render with.</source>
        <translation>Diseño con el que componer.</translation>
    </message>
    <message>
        <source>Give one of --html, --pdf and --out.</source>
        <translation>Indique una de --html, --pdf y --out.</translation>
    </message>
    <message>
        <source>Give at most one of --reminder and --slip.</source>
        <translation>Indique como mucho una de --reminder y --slip.</translation>
    </message>
    <message>
        <source>Give IDs or --all, not both.</source>
        <translation>Indique identificadores o --all, no ambos.</translation>
    </message>
    <message>
        <source>Missing argument.</source>
        <translation>Falta un argumento.</translation>
    </message>
    <message>
        <source>The design “%1” cannot be used: its page, row or style text is missing. Choose another design (tabo-cli design list) or fix this one.</source>
        <translation>No se puede usar el diseño “%1”: falta su texto de página, de fila o de estilo. Elija otro diseño (tabo-cli design list) o repare este.</translation>
    </message>
    <message>
        <source>The PDF file “%1” could not be created.</source>
        <translation>No se pudo crear el archivo PDF “%1”.</translation>
    </message>
    <message>
        <source>The folder “%1” could not be created.</source>
        <translation>No se pudo crear la carpeta “%1”.</translation>
    </message>
    <message>
        <source>--filter goes with --all.</source>
        <translation>--filter va con --all.</translation>
    </message>
    <message>
        <source>--html and --pdf write one document; use --out DIR for several.</source>
        <translation>--html y --pdf escriben un documento; use --out DIR para varios.</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>1 invoice</source>
        <translation>1 factura</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Facturas</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Promedio</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviada</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>Pendiente</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Pagada</translation>
    </message>
</context>
<context>
    <name>ReportCommand</name>
    <message>
        <source>The report over the documents a filter and search show: counts, sums and averages (with --json by their placeholder names), revenue per month and the five clients with the most. --from and --to limit it to invoices dated in between, both days included.</source>
        <translation>El informe sobre los documentos que muestran un filtro y una búsqueda: cantidades, sumas y promedios (con --json con sus nombres de marcador), ingresos por mes y los cinco clientes con más. --from y --to lo limitan a las facturas fechadas entre ambos días, incluidos.</translation>
    </message>
    <message>
        <source>First day.</source>
        <translation>Primer día.</translation>
    </message>
    <message>
        <source>Last day.</source>
        <translation>Último día.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>Mostrar JSON.</translation>
    </message>
    <message>
        <source>Write the report page.</source>
        <translation>Escribir la página del informe.</translation>
    </message>
    <message>
        <source>Write the report as PDF.</source>
        <translation>Escribir el informe como PDF.</translation>
    </message>
    <message>
        <source>A range needs both --from and --to.</source>
        <translation>Un intervalo necesita --from y --to.</translation>
    </message>
    <message>
        <source>“%1” is not an ISO 8601 date.</source>
        <translation>“%1” no es una fecha ISO 8601.</translation>
    </message>
    <message>
        <source>The report could not be written to “%1”.</source>
        <translation>No se pudo escribir el informe en “%1”.</translation>
    </message>
</context>
<context>
    <name>ReportCommands</name>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Hint!</source>
        <translation>¡Aviso!</translation>
    </message>
    <message>
        <source>The report is bound to the arranged invoices in Tabo&apos;s main window. This means you can, for example, search for a client and therefore see the report just for this single client or you can pre-filter all your invoices to see a report only for overdue invoices.</source>
        <translation>El informe está ligado a las facturas ordenadas en la ventana principal de Tabo. Así puede, por ejemplo, buscar un cliente y ver el informe solo de ese cliente, o filtrar antes sus facturas para ver un informe solo de las vencidas.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Ooops!</source>
        <translation>¡Uy!</translation>
    </message>
    <message>
        <source>Something went really wrong while creating the report.</source>
        <translation>Algo salió muy mal al crear el informe.</translation>
    </message>
    <message>
        <source>Save Report as PDF</source>
        <translation>Guardar informe como PDF</translation>
    </message>
</context>
<context>
    <name>RestoreCommand</name>
    <message>
        <source>Unknown backup “%1”.</source>
        <translation>Copia desconocida “%1”.</translation>
    </message>
    <message>
        <source>Missing FILE.</source>
        <translation>Falta FILE.</translation>
    </message>
    <message>
        <source>The automatic backup has its own place.</source>
        <translation>La copia automática tiene su propio lugar.</translation>
    </message>
    <message>
        <source>Nothing was restored from “%1”.</source>
        <translation>No se restauró nada de “%1”.</translation>
    </message>
    <message>
        <source>Warning!</source>
        <translation>¡Atención!</translation>
    </message>
    <message>
        <source>You are about to restore your Tabo invoices from a backup. This will irretrievably replace any existing invoices. Do you really want to do that?</source>
        <translation>Va a restaurar sus facturas de Tabo desde una copia. Esto reemplazará sin remedio todas las facturas existentes. ¿Seguro que quiere hacerlo?</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>Restaurar…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Nothing was restored from the automatic backup.</source>
        <translation>No se restauró nada de la copia automática.</translation>
    </message>
    <message>
        <source>Replace the whole database by a .tabo2db backup, the shown documents or the catalogue by their backup, or the shown documents by the automatic backup; needs --yes.</source>
        <translation>Reemplaza toda la base de datos por una copia .tabo2db, los documentos mostrados o el catálogo por su copia, o los documentos mostrados por la copia automática; necesita --yes.</translation>
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
Calle del Huerto 7
12345 Molinar
España</translation>
    </message>
    <message>
        <source>Dear Mara Lindqvist</source>
        <translation>Estimada Sra. Lindqvist</translation>
    </message>
    <message>
        <source>A Lot of Things</source>
        <translation>Un montón de cosas</translation>
    </message>
</context>
<context>
    <name>ScheduleTable</name>
    <message>
        <source>The repeated invoices could not be read or written: %1</source>
        <translation>No se pudieron leer o escribir las facturas periódicas: %1</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>The database could not be opened.</source>
        <translation>No se pudo abrir la base de datos.</translation>
    </message>
    <message>
        <source>No document with ID or number “%1”.</source>
        <translation>No hay ningún documento con el identificador o número “%1”.</translation>
    </message>
</context>
<context>
    <name>SetCommand</name>
    <message>
        <source>Set one attribute of a document (dates ISO 8601, booleans true/false/1/0, numbers in C notation or NaN). Totals are not recalculated.</source>
        <translation>Establece un atributo de un documento (fechas ISO 8601, booleanos true/false/1/0, números en notación C o NaN). Los totales no se recalculan.</translation>
    </message>
    <message>
        <source>A document&apos;s uniqueID cannot be changed: reminders, the window and every command find the document by it.</source>
        <translation>El uniqueID de un documento no se puede cambiar: los recordatorios, la ventana y cada orden encuentran el documento por él.</translation>
    </message>
    <message>
        <source>“%1” is no kind: 0 is a quote, 1 an invoice.</source>
        <translation>“%1” no es un tipo: 0 es un presupuesto, 1 una factura.</translation>
    </message>
    <message>
        <source>“%1” is no status: 0 created, 1 sent, 2 overdue, 3 paid, 4 partly paid.</source>
        <translation>“%1” no es un estado: 0 creada, 1 enviada, 2 vencida, 3 pagada, 4 pagada en parte.</translation>
    </message>
</context>
<context>
    <name>ShippingCommand</name>
    <message>
        <source>Edit the shipping line (keys: </source>
        <translation>Editar la línea de envío (teclas: </translation>
    </message>
    <message>
        <source>); keys not given keep their values. The line is remembered for later unless one with the same title and amount is.</source>
        <translation>); las claves no indicadas mantienen sus valores. La línea se recuerda para más tarde, salvo que ya exista una con el mismo título e importe.</translation>
    </message>
</context>
<context>
    <name>ShowCommand</name>
    <message>
        <source>Print a document with its lines.</source>
        <translation>Muestra un documento con sus líneas.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>Mostrar JSON.</translation>
    </message>
</context>
<context>
    <name>Statement</name>
    <message>
        <source>Entry %1</source>
        <translation>Apunte %1</translation>
    </message>
    <message>
        <source>%1 has no booking date.</source>
        <translation>%1 no tiene fecha de contabilización.</translation>
    </message>
    <message>
        <source>%1 is booked on %2, a day still to come.</source>
        <translation>%1 está contabilizado el %2, un día que aún no ha llegado.</translation>
    </message>
    <message>
        <source>%1 has no amount above zero.</source>
        <translation>%1 no tiene un importe mayor que cero.</translation>
    </message>
    <message>
        <source>%1 is in “%2”, which is no currency code.</source>
        <translation>%1 está en “%2”, que no es un código de moneda.</translation>
    </message>
    <message>
        <source>This is not a bank statement: its namespace is “%1”, not CAMT.053 or CAMT.054 (versions 001.02 to 001.08).</source>
        <translation>No es un extracto bancario: su espacio de nombres es “%1”, no CAMT.053 ni CAMT.054 (versiones 001.02 a 001.08).</translation>
    </message>
    <message>
        <source>The statement holds no account report.</source>
        <translation>El extracto no contiene ningún informe de cuenta.</translation>
    </message>
    <message>
        <source>This is not an MT940 statement: it does not begin with a “:20:” field.</source>
        <translation>No es un extracto MT940: no empieza con un campo “:20:”.</translation>
    </message>
    <message>
        <source>Entry %1 of the MT940 statement cannot be read: “%2”.</source>
        <translation>No se puede leer el apunte %1 del extracto MT940: “%2”.</translation>
    </message>
    <message>
        <source>The file is larger than any bank statement (%1 MB), so it is not read.</source>
        <translation>El archivo es mayor que cualquier extracto bancario (%1 MB), así que no se lee.</translation>
    </message>
    <message>
        <source>The file declares a DTD; bank statements never do, so it is not read.</source>
        <translation>El archivo declara una DTD; los extractos bancarios nunca lo hacen, así que no se lee.</translation>
    </message>
    <message>
        <source>The file nests its elements more deeply than any bank statement does.</source>
        <translation>El archivo anida sus elementos más profundamente que cualquier extracto bancario.</translation>
    </message>
    <message>
        <source>The file “%1” could not be read: %2</source>
        <translation>No se pudo leer el archivo “%1”: %2</translation>
    </message>
    <message>
        <source>The columns of this CSV file are not recognised: %1. Say once which column holds the date, the amount, the payer, the IBAN and the text; Tabo remembers it for files laid out like this one.</source>
        <translation>No se reconocen las columnas de este archivo CSV: %1. Indique una vez qué columna contiene la fecha, el importe, el pagador, el IBAN y el texto; Tabo lo recuerda para los archivos con la misma disposición.</translation>
    </message>
    <message>
        <source>This is not a bank statement Tabo reads (CAMT.053, CAMT.054, MT940 or CSV).</source>
        <translation>No es un extracto que Tabo lea (CAMT.053, CAMT.054, MT940 o CSV).</translation>
    </message>
</context>
<context>
    <name>Store</name>
    <message>
        <source>Restore your last complete backup (File ▸ Restore Database, or: tabo-cli restore database FILE --yes), or move the file aside to start a new database and restore the automatic backup of your documents (tabo-cli restore auto --yes).</source>
        <translation>Restaure su última copia completa (Archivo ▸ Restaurar base de datos, o: tabo-cli restore database ARCHIVO --yes), o aparte el archivo para empezar una nueva base de datos y restaure la copia automática de sus documentos (tabo-cli restore auto --yes).</translation>
    </message>
    <message>
        <source>Quit Tabo and keep the file for now. </source>
        <translation>Salir de Tabo y conservar el archivo por ahora. </translation>
    </message>
    <message>
        <source>The database “%1” is not a file.</source>
        <translation>La base de datos “%1” no es un archivo.</translation>
    </message>
    <message>
        <source>The file “%1” is not a Tabo database.</source>
        <translation>El archivo “%1” no es una base de datos de Tabo.</translation>
    </message>
    <message>
        <source>It has been left as it is.</source>
        <translation>Se ha dejado como estaba.</translation>
    </message>
    <message>
        <source>The database file “%1” is empty (0 bytes).</source>
        <translation>El archivo de base de datos “%1” está vacío (0 bytes).</translation>
    </message>
    <message>
        <source>It has been left as it is. </source>
        <translation>Se ha dejado como estaba. </translation>
    </message>
    <message>
        <source>The database “%1” could not be opened.</source>
        <translation>No se pudo abrir la base de datos “%1”.</translation>
    </message>
    <message>
        <source>The database “%1” could not be read.</source>
        <translation>No se pudo leer la base de datos “%1”.</translation>
    </message>
    <message>
        <source>The file “%1” is an SQLite database of another program, not a Tabo database.</source>
        <translation>El archivo “%1” es una base de datos SQLite de otro programa, no de Tabo.</translation>
    </message>
    <message>
        <source>The database “%1” was written by a newer version of Tabo.</source>
        <translation>La base de datos “%1” fue escrita por una versión más reciente de Tabo.</translation>
    </message>
    <message>
        <source>The database “%1” is damaged: its document table is missing.</source>
        <translation>La base de datos “%1” está dañada: falta su tabla de documentos.</translation>
    </message>
    <message>
        <source>The database “%1” could not be updated.</source>
        <translation>No se pudo actualizar la base de datos “%1”.</translation>
    </message>
    <message>
        <source>The database could not be read.</source>
        <translation>No se pudo leer la base de datos.</translation>
    </message>
    <message>
        <source>The database could not be replaced.</source>
        <translation>No se pudo reemplazar la base de datos.</translation>
    </message>
    <message>
        <source>No database is open.</source>
        <translation>No hay ninguna base de datos abierta.</translation>
    </message>
    <message>
        <source>The backup uses another page size than the database.</source>
        <translation>La copia usa otro tamaño de página que la base de datos.</translation>
    </message>
    <message>
        <source>The database file “%1” is damaged; nothing more is written to it.</source>
        <translation>El archivo de base de datos “%1” está dañado; no se escribe nada más en él.</translation>
    </message>
    <message>
        <source>Another program (another Tabo window or tabo-cli) has kept the database busy for 10 seconds. Your changes are still here; try again in a moment.</source>
        <translation>Otro programa (otra ventana de Tabo o tabo-cli) ha mantenido ocupada la base de datos durante 10 segundos. Sus cambios siguen aquí; inténtelo de nuevo en un momento.</translation>
    </message>
    <message>
        <source>Please use that version; the file has been left as it is.</source>
        <translation>Use esa versión; el archivo se ha dejado como estaba.</translation>
    </message>
</context>
<context>
    <name>StoreFile</name>
    <message>
        <source>“%1” could not be renamed to “%2”: %3.</source>
        <translation>No se pudo cambiar el nombre de “%1” a “%2”: %3.</translation>
    </message>
    <message>
        <source>Unable to move temporary store: %1</source>
        <translation>No se pudo mover el almacén temporal: %1</translation>
    </message>
    <message>
        <source>It does not exist or is not a file.</source>
        <translation>No existe o no es un archivo.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Está vacío.</translation>
    </message>
    <message>
        <source>It is not a database file.</source>
        <translation>No es un archivo de base de datos.</translation>
    </message>
    <message>
        <source>It is damaged or incomplete (%1).</source>
        <translation>Está dañado o incompleto (%1).</translation>
    </message>
    <message>
        <source>It is a database of another program.</source>
        <translation>Es una base de datos de otro programa.</translation>
    </message>
    <message>
        <source>It holds no Tabo data.</source>
        <translation>No contiene datos de Tabo.</translation>
    </message>
    <message>
        <source>Its log could not be written back.</source>
        <translation>No se pudo volver a escribir su registro.</translation>
    </message>
    <message>
        <source>It could not be read: %1.</source>
        <translation>No se pudo leer: %1.</translation>
    </message>
    <message>
        <source>“%1” could not be written: %2.</source>
        <translation>No se pudo escribir “%1”: %2.</translation>
    </message>
    <message>
        <source>Unable to add new store: %1</source>
        <translation>No se pudo añadir el almacén nuevo: %1</translation>
    </message>
    <message>
        <source>The restored database could not be opened.</source>
        <translation>No se pudo abrir la base de datos restaurada.</translation>
    </message>
    <message>
        <source>The restored database is missing.</source>
        <translation>Falta la base de datos restaurada.</translation>
    </message>
    <message>
        <source>An interrupted restore of “%1” is undone: %2</source>
        <translation>Se deshizo una restauración interrumpida de “%1”: %2</translation>
    </message>
    <message>
        <source>It is missing or empty.</source>
        <translation>Falta o está vacío.</translation>
    </message>
    <message>
        <source>The interrupted move of the database from “%1” cannot be finished: %2</source>
        <translation>No se puede completar el traslado interrumpido de la base de datos desde “%1”: %2</translation>
    </message>
    <message>
        <source>Finished the interrupted move of the database from “%1” to “%2”.</source>
        <translation>Se completó el traslado interrumpido de la base de datos de “%1” a “%2”.</translation>
    </message>
    <message>
        <source>Removed “%1”, left by an interrupted copy.</source>
        <translation>Se eliminó “%1”, dejado por una copia interrumpida.</translation>
    </message>
    <message>
        <source>“%1” could not be written: no free name for a working copy beside it.</source>
        <translation>No se pudo escribir “%1”: no hay un nombre libre para una copia de trabajo a su lado.</translation>
    </message>
    <message>
        <source>Unable to add migratePersistentStore: %1</source>
        <translation>No se pudo migrar el almacén: %1</translation>
    </message>
    <message>
        <source>Unable to acopyItemAtURL: %1</source>
        <translation>No se pudo copiar: %1</translation>
    </message>
    <message>
        <source>An interrupted restore of “%1” is complete; removing the previous database.</source>
        <translation>Se completó una restauración interrumpida de “%1”; se elimina la base de datos anterior.</translation>
    </message>
</context>
<context>
    <name>StoreJournal</name>
    <message>
        <source>The database could not be read.</source>
        <translation>No se pudo leer la base de datos.</translation>
    </message>
</context>
<context>
    <name>StoreRecords</name>
    <message>
        <source>The database could not be read.</source>
        <translation>No se pudo leer la base de datos.</translation>
    </message>
    <message>
        <source>The lines of a document could not be read.</source>
        <translation>No se pudieron leer las líneas de un documento.</translation>
    </message>
    <message>
        <source>A record could not be deleted.</source>
        <translation>No se pudo eliminar un registro.</translation>
    </message>
    <message>
        <source>A record could not be written.</source>
        <translation>No se pudo escribir un registro.</translation>
    </message>
    <message>
        <source>The changes could not be saved.</source>
        <translation>No se pudieron guardar los cambios.</translation>
    </message>
    <message>
        <source>Failed to initialize the store</source>
        <translation>No se pudo inicializar el almacén</translation>
    </message>
    <message>
        <source>There was an error building up the data file.</source>
        <translation>Hubo un error al construir el archivo de datos.</translation>
    </message>
    <message>
        <source>Another program changed the same records after they were read here.</source>
        <translation>Otro programa cambió los mismos registros después de leerlos aquí.</translation>
    </message>
    <message>
        <source>No database is open.</source>
        <translation>No hay ninguna base de datos abierta.</translation>
    </message>
    <message>
        <source>The database could not be written.</source>
        <translation>No se pudo escribir la base de datos.</translation>
    </message>
</context>
<context>
    <name>TemplateCommand</name>
    <message>
        <source>Groups to take over.</source>
        <translation>Grupos que adoptar.</translation>
    </message>
    <message>
        <source>The template&apos;s description.</source>
        <translation>La descripción de la plantilla.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>Mostrar JSON.</translation>
    </message>
    <message>
        <source>A template needs a name.</source>
        <translation>Una plantilla necesita un nombre.</translation>
    </message>
    <message>
        <source>A template named “%1” exists already.</source>
        <translation>Ya existe una plantilla llamada “%1”.</translation>
    </message>
    <message>
        <source>No template named “%1”.</source>
        <translation>No hay ninguna plantilla llamada “%1”.</translation>
    </message>
    <message>
        <source>Save a document as a named template (--include picks the groups for this save; otherwise the preferences do), fill a document from one, list or delete them.</source>
        <translation>Guarda un documento como plantilla con nombre (--include elige los grupos para este guardado; si no, las preferencias), rellena un documento desde una, las lista o las elimina.</translation>
    </message>
    <message>
        <source>--include and --notes belong to “template save”.</source>
        <translation>--include y --notes corresponden a “template save”.</translation>
    </message>
    <message>
        <source>--json belongs to “template list”.</source>
        <translation>--json corresponde a “template list”.</translation>
    </message>
</context>
<context>
    <name>TemplateCommands</name>
    <message>
        <source>Error!</source>
        <translation>¡Error!</translation>
    </message>
    <message>
        <source>The selected invoice is marked as already sent. If you really need to make changes, please set its status back to &apos;Created&apos; first. Then you will also be able to resend the modified invoice.</source>
        <translation>La factura seleccionada ya está marcada como enviada. Si de verdad necesita cambiarla, vuelva primero su estado a “Creada”. Después podrá reenviar la factura modificada.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Plantilla</translation>
    </message>
</context>
<context>
    <name>XmlPlist</name>
    <message>
        <source>cannot write a value of type %1</source>
        <translation>no se puede escribir un valor de tipo %1</translation>
    </message>
    <message>
        <source>date out of range</source>
        <translation>fecha fuera de rango</translation>
    </message>
    <message>
        <source>unknown XML element</source>
        <translation>elemento XML desconocido</translation>
    </message>
    <message>
        <source>not a valid XML property list</source>
        <translation>no es una lista de propiedades XML válida</translation>
    </message>
</context>
<context>
    <name>XmlTree</name>
    <message>
        <source>The file is not well-formed XML (line %1: %2).</source>
        <translation>El archivo no es XML bien formado (línea %1: %2).</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Usage: tabo-cli COMMAND [ARGUMENTS]</source>
        <translation>Uso: tabo-cli ORDEN [ARGUMENTOS]</translation>
    </message>
    <message>
        <source>Missing command. Run “tabo-cli --help” for usage.</source>
        <translation>Falta la orden. Ejecute “tabo-cli --help” para ver el uso.</translation>
    </message>
    <message>
        <source>Unknown option “%1”.</source>
        <translation>Opción desconocida “%1”.</translation>
    </message>
    <message>
        <source>Unknown command “%1”.</source>
        <translation>Orden desconocida “%1”.</translation>
    </message>
    <message>
        <source> Run “tabo-cli --help” for usage.</source>
        <translation> Ejecute “tabo-cli --help” para ver el uso.</translation>
    </message>
    <message>
        <source>Invoices and quotes for freelancers and small businesses.</source>
        <translation>Facturas y presupuestos para autónomos y pequeñas empresas.</translation>
    </message>
    <message>
        <source>Start with the list filtered to the invoice with this unique ID.</source>
        <translation>Empezar con la lista filtrada a la factura con este identificador único.</translation>
    </message>
    <message>
        <source>Start with a new invoice.</source>
        <translation>Empezar con una factura nueva.</translation>
    </message>
    <message>
        <source>Start with a new quote.</source>
        <translation>Empezar con un presupuesto nuevo.</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>¡Error!</translation>
    </message>
    <message>
        <source>Restore Last Good Settings</source>
        <translation>Restaurar los últimos ajustes correctos</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Órdenes:</translation>
    </message>
    <message>
        <source>Documents, designs, backups or e-invoices to open.</source>
        <translation>Documentos, diseños, copias o facturas electrónicas que abrir.</translation>
    </message>
</context>
<context>
    <name>tabo::AboutDialog</name>
    <message>
        <source>About Tabo</source>
        <translation>Acerca de Tabo</translation>
    </message>
    <message>
        <source>Tabo icon</source>
        <translation>Icono de Tabo</translation>
    </message>
    <message>
        <source>Invoices and quotes for freelancers and small businesses.</source>
        <translation>Facturas y presupuestos para autónomos y pequeñas empresas.</translation>
    </message>
    <message>
        <source>Licence: proprietary; all rights reserved.</source>
        <translation>Licencia: propietaria; todos los derechos reservados.</translation>
    </message>
    <message>
        <source>Built with</source>
        <translation>Hecho con</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Biblioteca</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>Bibliotecas</translation>
    </message>
</context>
<context>
    <name>tabo::AccountingExportSheet</name>
    <message>
        <source>All except created</source>
        <translation>Todos excepto los creados</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Pagada</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>Vencida</translation>
    </message>
    <message>
        <source>One summary line per invoice</source>
        <translation>Una línea de resumen por factura</translation>
    </message>
    <message>
        <source>Every line</source>
        <translation>Cada línea</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Desde:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Hasta:</translation>
    </message>
    <message>
        <source>Invoices:</source>
        <translation>Facturas:</translation>
    </message>
    <message>
        <source>Lines:</source>
        <translation>Líneas:</translation>
    </message>
    <message>
        <source>1 invoice will be sent.</source>
        <translation>Se enviará 1 factura.</translation>
    </message>
    <message>
        <source>%1 invoices will be sent.</source>
        <translation>Se enviarán %1 facturas.</translation>
    </message>
</context>
<context>
    <name>tabo::AddressPopover</name>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contactos</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recientes</translation>
    </message>
    <message>
        <source>E-invoice</source>
        <translation>Factura electrónica</translation>
    </message>
    <message>
        <source>Generate</source>
        <translation>Generar</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Dirección:</translation>
    </message>
    <message>
        <source>Client number:</source>
        <translation>Número de cliente:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>Correo:</translation>
    </message>
    <message>
        <source>VAT ID:</source>
        <translation>NIF-IVA:</translation>
    </message>
    <message>
        <source>Salutation:</source>
        <translation>Saludo:</translation>
    </message>
    <message>
        <source>First name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Last name:</source>
        <translation>Apellidos:</translation>
    </message>
    <message>
        <source>Use Address</source>
        <translation>Usar dirección</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Cliente</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Usar</translation>
    </message>
    <message>
        <source>Company or name:</source>
        <translation>Empresa o nombre:</translation>
    </message>
    <message>
        <source>Street:</source>
        <translation>Calle:</translation>
    </message>
    <message>
        <source>Postcode:</source>
        <translation>Código postal:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ciudad:</translation>
    </message>
    <message>
        <source>Country code:</source>
        <translation>Código de país:</translation>
    </message>
    <message>
        <source>Buyer reference:</source>
        <translation>Referencia del comprador:</translation>
    </message>
    <message>
        <source>E-invoice address:</source>
        <translation>Dirección de factura electrónica:</translation>
    </message>
    <message>
        <source>DE, FR, AT…</source>
        <translation>ES, FR, DE…</translation>
    </message>
    <message>
        <source>Leitweg-ID of a public authority</source>
        <translation>Leitweg-ID de una administración pública</translation>
    </message>
    <message>
        <source>e-mail or scheme:identifier</source>
        <translation>correo o esquema:identificador</translation>
    </message>
    <message>
        <source>Choose vCard File</source>
        <translation>Elegir archivo vCard</translation>
    </message>
</context>
<context>
    <name>tabo::CatalogueWindow</name>
    <message>
        <source>Catalogue</source>
        <translation>Catálogo</translation>
    </message>
    <message>
        <source>Search title, article number or unit</source>
        <translation>Buscar título, referencia o unidad</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Impuesto %1</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Precio</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Article number</source>
        <translation>Número de artículo</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Búsqueda</translation>
    </message>
</context>
<context>
    <name>tabo::ClientPage</name>
    <message>
        <source>Address…</source>
        <translation>Dirección…</translation>
    </message>
    <message>
        <source>Take the client from your contacts or the recent addresses</source>
        <translation>Tomar el cliente de sus contactos o de las direcciones recientes</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Salutation:</source>
        <translation>Saludo:</translation>
    </message>
    <message>
        <source>Client number:</source>
        <translation>Número de cliente:</translation>
    </message>
    <message>
        <source>VAT ID:</source>
        <translation>NIF-IVA:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>Correo:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Dirección:</translation>
    </message>
    <message>
        <source>Heading:</source>
        <translation>Encabezado:</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>Número:</translation>
    </message>
    <message>
        <source>Subject:</source>
        <translation>Asunto:</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
</context>
<context>
    <name>tabo::ContactsTab</name>
    <message>
        <source>No vCard file chosen yet.</source>
        <translation>Aún no se ha elegido ningún archivo vCard.</translation>
    </message>
    <message>
        <source>Use Contact</source>
        <translation>Usar contacto</translation>
    </message>
    <message>
        <source>Choose vCard File…</source>
        <translation>Elegir archivo vCard…</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contactos</translation>
    </message>
</context>
<context>
    <name>tabo::DatesPage</name>
    <message>
        <source>Dispatched on</source>
        <translation>Enviado el</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Creada</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviada</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>Vencida</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Pagada</translation>
    </message>
    <message>
        <source>Partly paid</source>
        <translation>Pagada en parte</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>Dispatch number:</source>
        <translation>Número de envío:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Paid amount:</source>
        <translation>Importe pagado:</translation>
    </message>
    <message>
        <source>Valid until:</source>
        <translation>Válido hasta:</translation>
    </message>
    <message>
        <source>Due:</source>
        <translation>Vencimiento:</translation>
    </message>
</context>
<context>
    <name>tabo::DesignChoiceSheet</name>
    <message>
        <source>Choose Design</source>
        <translation>Elegir diseño</translation>
    </message>
    <message>
        <source>Choose the design your documents are printed with.</source>
        <translation>Elija el diseño con el que se imprimen sus documentos.</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>Designs</source>
        <translation>Diseños</translation>
    </message>
</context>
<context>
    <name>tabo::DesignPane</name>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Make Default</source>
        <translation>Establecer como predeterminado</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Fila</translation>
    </message>
    <message>
        <source>Stylesheet</source>
        <translation>Hoja de estilo</translation>
    </message>
    <message>
        <source>Documents are rendered with this design.</source>
        <translation>Los documentos se componen con este diseño.</translation>
    </message>
    <message>
        <source>The preview could not be shown.</source>
        <translation>No se pudo mostrar la vista previa.</translation>
    </message>
    <message>
        <source>Design Preview</source>
        <translation>Vista previa del diseño</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimir…</translation>
    </message>
    <message>
        <source>Designs</source>
        <translation>Diseños</translation>
    </message>
</context>
<context>
    <name>tabo::DesignPreview</name>
    <message>
        <source>The page is empty.</source>
        <translation>La página está vacía.</translation>
    </message>
    <message>
        <source>The row is empty.</source>
        <translation>La fila está vacía.</translation>
    </message>
    <message>
        <source>Page, line %1: a comment is not closed (“--&gt;” missing).</source>
        <translation>Página, línea %1: un comentario no está cerrado (falta “--&gt;”).</translation>
    </message>
    <message>
        <source>Page, line %1: a tag is not closed (“&gt;” missing).</source>
        <translation>Página, línea %1: una etiqueta no está cerrada (falta “&gt;”).</translation>
    </message>
    <message>
        <source>Row, line %1: a comment is not closed (“--&gt;” missing).</source>
        <translation>Fila, línea %1: un comentario no está cerrado (falta “--&gt;”).</translation>
    </message>
    <message>
        <source>Row, line %1: a tag is not closed (“&gt;” missing).</source>
        <translation>Fila, línea %1: una etiqueta no está cerrada (falta “&gt;”).</translation>
    </message>
    <message>
        <source>Stylesheet, line %1: a comment is not closed (“*/” missing).</source>
        <translation>Hoja de estilo, línea %1: un comentario no está cerrado (falta “*/”).</translation>
    </message>
    <message>
        <source>Stylesheet: a “{” and a “}” do not pair up.</source>
        <translation>Hoja de estilo: una “{” y una “}” no se emparejan.</translation>
    </message>
    <message>
        <source>The page could not be rendered.</source>
        <translation>No se pudo componer la página.</translation>
    </message>
</context>
<context>
    <name>tabo::DiscountPopover</name>
    <message>
        <source>Grant a discount on this document</source>
        <translation>Conceder un descuento en este documento</translation>
    </message>
    <message>
        <source>Fixed amount:</source>
        <translation>Importe fijo:</translation>
    </message>
    <message>
        <source>Percentage:</source>
        <translation>Porcentaje:</translation>
    </message>
    <message>
        <source>Show a second line:</source>
        <translation>Mostrar una segunda línea:</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Título:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>The discount could not be changed.</source>
        <translation>No se pudo cambiar el descuento.</translation>
    </message>
    <message>
        <source>Second line</source>
        <translation>Segunda línea</translation>
    </message>
</context>
<context>
    <name>tabo::DocumentActions</name>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Convert to Invoice</source>
        <translation>Convertir en factura</translation>
    </message>
    <message>
        <source>Cancel Invoice…</source>
        <translation>Anular factura…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Add Item…</source>
        <translation>Añadir artículo…</translation>
    </message>
    <message>
        <source>Delete Item</source>
        <translation>Eliminar artículo</translation>
    </message>
    <message>
        <source>A copy of the selected document with a new number</source>
        <translation>Una copia del documento seleccionado con un número nuevo</translation>
    </message>
    <message>
        <source>Turn the selected quote into an invoice</source>
        <translation>Convertir el presupuesto seleccionado en factura</translation>
    </message>
    <message>
        <source>A credit note that takes back a sent or paid invoice</source>
        <translation>Una factura rectificativa que anula una factura enviada o pagada</translation>
    </message>
    <message>
        <source>Delete Quote</source>
        <translation>Eliminar presupuesto</translation>
    </message>
    <message>
        <source>Delete Invoice</source>
        <translation>Eliminar factura</translation>
    </message>
</context>
<context>
    <name>tabo::DocumentEditor</name>
    <message>
        <source>Select a document in the list, or create one.</source>
        <translation>Seleccione un documento de la lista o cree uno.</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Cliente</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Artículos</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Textos</translation>
    </message>
    <message>
        <source>Dates and status</source>
        <translation>Fechas y estado</translation>
    </message>
</context>
<context>
    <name>tabo::DocumentHeader</name>
    <message>
        <source>Invoice</source>
        <translation>Factura</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Presupuesto</translation>
    </message>
    <message>
        <source>No client yet</source>
        <translation>Aún sin cliente</translation>
    </message>
</context>
<context>
    <name>tabo::DocumentListPane</name>
    <message>
        <source>No documents yet — choose New Invoice to write your first.</source>
        <translation>Aún no hay documentos: elija “Nueva factura” para escribir la primera.</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
</context>
<context>
    <name>tabo::DocumentTableModel</name>
    <message>
        <source>Quote</source>
        <translation>Presupuesto</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviada</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>Vencida</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Pagada</translation>
    </message>
    <message>
        <source>Partly paid</source>
        <translation>Pagada en parte</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Creada</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Cliente</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Asunto</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
</context>
<context>
    <name>tabo::ExportSheet</name>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Guardar…</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>tabo::FieldBinder</name>
    <message>
        <source>Please enter a number, for example 12.50.</source>
        <translation>Introduzca un número, por ejemplo 12,50.</translation>
    </message>
</context>
<context>
    <name>tabo::FileMenu</name>
    <message>
        <source>Export Document…</source>
        <translation>Exportar documento…</translation>
    </message>
    <message>
        <source>Export Shown Documents as XML…</source>
        <translation>Exportar los documentos mostrados como XML…</translation>
    </message>
    <message>
        <source>Export All Documents as XML…</source>
        <translation>Exportar todos los documentos como XML…</translation>
    </message>
    <message>
        <source>Export Invoices Dump…</source>
        <translation>Exportar volcado de facturas…</translation>
    </message>
    <message>
        <source>Import Document…</source>
        <translation>Importar documento…</translation>
    </message>
    <message>
        <source>Back Up Database…</source>
        <translation>Hacer copia de la base de datos…</translation>
    </message>
    <message>
        <source>Restore Database…</source>
        <translation>Restaurar base de datos…</translation>
    </message>
    <message>
        <source>Back Up Documents…</source>
        <translation>Hacer copia de los documentos…</translation>
    </message>
    <message>
        <source>Restore Documents…</source>
        <translation>Restaurar documentos…</translation>
    </message>
    <message>
        <source>Back Up Catalogue…</source>
        <translation>Hacer copia del catálogo…</translation>
    </message>
    <message>
        <source>Restore Catalogue…</source>
        <translation>Restaurar catálogo…</translation>
    </message>
    <message>
        <source>Restore Automatic Backup…</source>
        <translation>Restaurar la copia automática…</translation>
    </message>
    <message>
        <source>Send Invoices To Vorlux…</source>
        <translation>Enviar facturas a Vorlux…</translation>
    </message>
    <message>
        <source>Send Invoices To quandrella…</source>
        <translation>Enviar facturas a quandrella…</translation>
    </message>
    <message>
        <source>Open E-Invoice…</source>
        <translation>Abrir factura electrónica…</translation>
    </message>
    <message>
        <source>Received E-Invoice</source>
        <translation>Factura electrónica recibida</translation>
    </message>
    <message>
        <source>Import Bank Statement…</source>
        <translation>Importar extracto bancario…</translation>
    </message>
</context>
<context>
    <name>tabo::FilterButton</name>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>One Invoice</source>
        <translation>Una factura</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtro: %1</translation>
    </message>
    <message>
        <source>A filter is on — click to show all documents</source>
        <translation>Hay un filtro activo: haga clic para mostrar todos los documentos</translation>
    </message>
    <message>
        <source>Filter the documents</source>
        <translation>Filtrar los documentos</translation>
    </message>
</context>
<context>
    <name>tabo::FilterPopover</name>
    <message>
        <source>All documents</source>
        <translation>Todos los documentos</translation>
    </message>
    <message>
        <source>Sent and open</source>
        <translation>Enviadas y abiertas</translation>
    </message>
    <message>
        <source>Overdue and partly paid</source>
        <translation>Vencidas y pagadas en parte</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Pagada</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Presupuestos</translation>
    </message>
    <message>
        <source>Last 12 hours</source>
        <translation>Últimas 12 horas</translation>
    </message>
    <message>
        <source>Last 3.5 days</source>
        <translation>Últimos 3,5 días</translation>
    </message>
    <message>
        <source>Last 15.5 days</source>
        <translation>Últimos 15,5 días</translation>
    </message>
    <message>
        <source>Last 182.5 days</source>
        <translation>Últimos 182,5 días</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
</context>
<context>
    <name>tabo::FirstStartAssistant</name>
    <message>
        <source>Welcome to Tabo</source>
        <translation>Bienvenido a Tabo</translation>
    </message>
    <message>
        <source>Language of your documents</source>
        <translation>Idioma de sus documentos</translation>
    </message>
    <message>
        <source>Tabo fills in labels, texts, number patterns, taxes and paper size for the language you write your invoices in. You can change every one of them later.</source>
        <translation>Tabo rellena etiquetas, textos, patrones de numeración, impuestos y tamaño del papel para el idioma en que escribe sus facturas. Podrá cambiarlos todos más tarde.</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Inglés</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Alemán</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francés</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Español</translation>
    </message>
    <message>
        <source>Documents in:</source>
        <translation>Documentos en:</translation>
    </message>
    <message>
        <source>Calculate totals to the cent for each VAT rate</source>
        <translation>Calcular los totales al céntimo por cada tipo de IVA</translation>
    </message>
    <message>
        <source>Your company</source>
        <translation>Su empresa</translation>
    </message>
    <message>
        <source>These details head every document you send.</source>
        <translation>Estos datos encabezan cada documento que envía.</translation>
    </message>
    <message>
        <source>Company name:</source>
        <translation>Nombre de la empresa:</translation>
    </message>
    <message>
        <source>Slogan:</source>
        <translation>Eslogan:</translation>
    </message>
    <message>
        <source>Street:</source>
        <translation>Calle:</translation>
    </message>
    <message>
        <source>Postcode:</source>
        <translation>Código postal:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ciudad:</translation>
    </message>
    <message>
        <source>Country code:</source>
        <translation>Código de país:</translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation>Teléfono:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>Correo:</translation>
    </message>
    <message>
        <source>Taxes and bank</source>
        <translation>Impuestos y banco</translation>
    </message>
    <message>
        <source>Invoices must name your tax number or VAT ID, and your customers need your bank details to pay. They go into the footer of every document; leave out what you do not have.</source>
        <translation>Las facturas deben indicar su NIF o número de IVA, y sus clientes necesitan sus datos bancarios para pagar. Figuran en el pie de cada documento; omita lo que no tenga.</translation>
    </message>
    <message>
        <source>VAT ID:</source>
        <translation>NIF-IVA:</translation>
    </message>
    <message>
        <source>Tax number:</source>
        <translation>Número fiscal:</translation>
    </message>
    <message>
        <source>Bank:</source>
        <translation>Banco:</translation>
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
        <translation>ES, FR, US…</translation>
    </message>
</context>
<context>
    <name>tabo::ItemPopover</name>
    <message>
        <source>New Item</source>
        <translation>Nuevo artículo</translation>
    </message>
    <message>
        <source>Catalogue</source>
        <translation>Catálogo</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Título:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descripción:</translation>
    </message>
    <message>
        <source>Code:</source>
        <translation>Código:</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation>Unidad:</translation>
    </message>
    <message>
        <source>Article number:</source>
        <translation>Número de artículo:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Nota:</translation>
    </message>
    <message>
        <source>Unit price:</source>
        <translation>Precio unitario:</translation>
    </message>
    <message>
        <source>Quantity:</source>
        <translation>Cantidad:</translation>
    </message>
    <message>
        <source>Taxes:</source>
        <translation>Impuestos:</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Article number</source>
        <translation>Número de artículo</translation>
    </message>
    <message>
        <source>Unit price</source>
        <translation>Precio unitario</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Usar</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Impuesto %1</translation>
    </message>
    <message>
        <source>The item could not be added.</source>
        <translation>No se pudo añadir el artículo.</translation>
    </message>
</context>
<context>
    <name>tabo::ItemTableModel</name>
    <message>
        <source>Item</source>
        <translation>Artículo</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation>Precio unitario</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Impuestos</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importe</translation>
    </message>
</context>
<context>
    <name>tabo::ItemsPage</name>
    <message>
        <source>Add Item…</source>
        <translation>Añadir artículo…</translation>
    </message>
    <message>
        <source>Delete Item</source>
        <translation>Eliminar artículo</translation>
    </message>
    <message>
        <source>Shipping…</source>
        <translation>Envío…</translation>
    </message>
    <message>
        <source>Discount…</source>
        <translation>Descuento…</translation>
    </message>
    <message>
        <source>Templates…</source>
        <translation>Plantillas…</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Artículos</translation>
    </message>
</context>
<context>
    <name>tabo::LetterSheet</name>
    <message>
        <source>Title:</source>
        <translation>Título:</translation>
    </message>
    <message>
        <source>Conditions:</source>
        <translation>Condiciones:</translation>
    </message>
    <message>
        <source>Miscellaneous:</source>
        <translation>Varios:</translation>
    </message>
    <message>
        <source>Footer:</source>
        <translation>Pie de página:</translation>
    </message>
    <message>
        <source>Generate</source>
        <translation>Generar</translation>
    </message>
    <message>
        <source>Payment Reminder</source>
        <translation>Recordatorio de pago</translation>
    </message>
    <message>
        <source>Delivery Slip</source>
        <translation>Albarán</translation>
    </message>
</context>
<context>
    <name>tabo::LogoWell</name>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Drop an image here</source>
        <translation>Suelte una imagen aquí</translation>
    </message>
    <message>
        <source>The stored logo cannot be read</source>
        <translation>No se puede leer el logotipo guardado</translation>
    </message>
    <message>
        <source>“%1” is larger than 10 MB; please use a smaller image.</source>
        <translation>“%1” supera los 10 MB; use una imagen más pequeña.</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>No se puede leer “%1”.</translation>
    </message>
    <message>
        <source>“%1” is not an image Tabo can read (PNG, JPEG, GIF, BMP or TIFF).</source>
        <translation>“%1” no es una imagen que Tabo pueda leer (PNG, JPEG, GIF, BMP o TIFF).</translation>
    </message>
    <message>
        <source>Choose Logo Image</source>
        <translation>Elegir imagen del logotipo</translation>
    </message>
</context>
<context>
    <name>tabo::MainWindow</name>
    <message>
        <source>New Invoice</source>
        <translation>Nueva factura</translation>
    </message>
    <message>
        <source>New Quote</source>
        <translation>Nuevo presupuesto</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferencias…</translation>
    </message>
    <message>
        <source>&amp;Documents</source>
        <translation>&amp;Documentos</translation>
    </message>
    <message>
        <source>&amp;Items</source>
        <translation>&amp;Artículos</translation>
    </message>
    <message>
        <source>&amp;Reports</source>
        <translation>&amp;Informes</translation>
    </message>
    <message>
        <source>Report…</source>
        <translation>Informe…</translation>
    </message>
    <message>
        <source>Print Account Book…</source>
        <translation>Imprimir libro de cuentas…</translation>
    </message>
    <message>
        <source>Catalogue…</source>
        <translation>Catálogo…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimir…</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Guardar como PDF…</translation>
    </message>
    <message>
        <source>E-mail…</source>
        <translation>Correo…</translation>
    </message>
    <message>
        <source>Reminder…</source>
        <translation>Recordatorio…</translation>
    </message>
    <message>
        <source>Delivery Slip…</source>
        <translation>Albarán…</translation>
    </message>
    <message>
        <source>Choose Design…</source>
        <translation>Elegir diseño…</translation>
    </message>
    <message>
        <source>&amp;Output</source>
        <translation>&amp;Salida</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Búsqueda</translation>
    </message>
    <message>
        <source>Search number, client, subject, amount</source>
        <translation>Buscar número, cliente, asunto, importe</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Remind Me…</source>
        <translation>Recordármelo…</translation>
    </message>
    <message>
        <source>Schedule a desktop notification about this invoice</source>
        <translation>Programar una notificación de escritorio para esta factura</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>Guía del usuario</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>About Tabo</source>
        <translation>Acerca de Tabo</translation>
    </message>
    <message>
        <source>Repeat Invoice…</source>
        <translation>Repetir factura…</translation>
    </message>
</context>
<context>
    <name>tabo::NotificationSheet</name>
    <message>
        <source>Remind Me</source>
        <translation>Recordármelo</translation>
    </message>
    <message>
        <source>A desktop notification reminds you of this invoice.</source>
        <translation>Una notificación del escritorio le recuerda esta factura.</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Título:</translation>
    </message>
    <message>
        <source>Subtitle:</source>
        <translation>Subtítulo:</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Texto:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Programar</translation>
    </message>
</context>
<context>
    <name>tabo::PageRenderer</name>
    <message>
        <source>FAIL! YOUR SELECTED DESIGN IS EITHER BROKEN, CORRUPTED, OR DAMAGED! YOU NEED TO FIX THIS!</source>
        <translation>¡FALLO! ¡EL DISEÑO SELECCIONADO ESTÁ ROTO, CORRUPTO O DAÑADO! ¡TIENE QUE ARREGLARLO!</translation>
    </message>
</context>
<context>
    <name>tabo::PaymentReviewWindow</name>
    <message>
        <source>Sure</source>
        <translation>Seguro</translation>
    </message>
    <message>
        <source>Proposed</source>
        <translation>Propuesto</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>Taken in before</source>
        <translation>Ya aplicado</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>Sin coincidencia</translation>
    </message>
    <message>
        <source>Bank Statement</source>
        <translation>Extracto bancario</translation>
    </message>
    <message>
        <source>Credits on the statement</source>
        <translation>Abonos del extracto</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Booked</source>
        <translation>Contabilizado</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importe</translation>
    </message>
    <message>
        <source>Payer</source>
        <translation>Pagador</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Factura</translation>
    </message>
    <message>
        <source>Match</source>
        <translation>Coincidencia</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>Por qué</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>%1 of %2 credits (%3) will be taken in; the rest is skipped.</source>
        <translation>Se aplicarán %1 de %2 abonos (%3); el resto se omite.</translation>
    </message>
    <message>
        <source>The bank statement cannot be read</source>
        <translation>No se puede leer el extracto bancario</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Columns of the Statement</source>
        <translation>Columnas del extracto</translation>
    </message>
    <message>
        <source>Booking date:</source>
        <translation>Fecha de contabilización:</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>Importe:</translation>
    </message>
    <message>
        <source>Payer:</source>
        <translation>Pagador:</translation>
    </message>
    <message>
        <source>IBAN:</source>
        <translation>IBAN:</translation>
    </message>
    <message>
        <source>Remittance text:</source>
        <translation>Concepto:</translation>
    </message>
    <message>
        <source>Currency:</source>
        <translation>Divisa:</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ninguna)</translation>
    </message>
    <message>
        <source>Tabo does not know the headings of this file. Say once which column holds what; files laid out like it are read so from now on.</source>
        <translation>Tabo no conoce los encabezados de este archivo. Indique una vez qué contiene cada columna; a partir de ahora los archivos con la misma disposición se leerán así.</translation>
    </message>
</context>
<context>
    <name>tabo::PdfPane</name>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>tabo::PrefsBinder</name>
    <message>
        <source>The stored value stays.</source>
        <translation>Se mantiene el valor guardado.</translation>
    </message>
    <message>
        <source>%1 must be a whole number.</source>
        <translation>%1 debe ser un número entero.</translation>
    </message>
    <message>
        <source>%1 cannot be below %2.</source>
        <translation>%1 no puede ser menor que %2.</translation>
    </message>
    <message>
        <source>%1 cannot be above %2.</source>
        <translation>%1 no puede ser mayor que %2.</translation>
    </message>
    <message>
        <source>The rate must be a number, such as 19 or 7.5.</source>
        <translation>El tipo debe ser un número, como 19 o 7,5.</translation>
    </message>
    <message>
        <source>The rate cannot be below 0 %.</source>
        <translation>El tipo no puede ser inferior al 0 %.</translation>
    </message>
    <message>
        <source>The rate cannot be above 1000 %.</source>
        <translation>El tipo no puede superar el 1000 %.</translation>
    </message>
</context>
<context>
    <name>tabo::PreviewWindow</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimir…</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Guardar como PDF…</translation>
    </message>
    <message>
        <source>E-mail…</source>
        <translation>Correo…</translation>
    </message>
    <message>
        <source>Reminder…</source>
        <translation>Recordatorio…</translation>
    </message>
    <message>
        <source>Delivery Slip…</source>
        <translation>Albarán…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Preparing the preview…</source>
        <translation>Preparando la vista previa…</translation>
    </message>
    <message>
        <source>No design available</source>
        <translation>No hay ningún diseño disponible</translation>
    </message>
    <message>
        <source>A document is printed through a design, and the design library is empty.

Add a design or import a design file in the Design pane of the preferences, or reinstall the built-in designs here.</source>
        <translation>Un documento se imprime mediante un diseño, y la biblioteca de diseños está vacía.

Añada un diseño o importe un archivo de diseño en la sección Diseño de las preferencias, o reinstale aquí los diseños incluidos.</translation>
    </message>
    <message>
        <source>Reinstall Built-in Designs</source>
        <translation>Reinstalar los diseños incluidos</translation>
    </message>
</context>
<context>
    <name>tabo::QVPreferencePanel</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Company name:</source>
        <translation>Nombre de la empresa:</translation>
    </message>
    <message>
        <source>Slogan:</source>
        <translation>Eslogan:</translation>
    </message>
    <message>
        <source>Contact:</source>
        <translation>Contacto:</translation>
    </message>
    <message>
        <source>Letterbox line:</source>
        <translation>Línea de remitente:</translation>
    </message>
    <message>
        <source>The sender line above the address, read through a window envelope.</source>
        <translation>La línea de remitente sobre la dirección, legible en un sobre con ventana.</translation>
    </message>
    <message>
        <source>Logo:</source>
        <translation>Logotipo:</translation>
    </message>
    <message>
        <source>Currency sign:</source>
        <translation>Símbolo de moneda:</translation>
    </message>
    <message>
        <source>Address, taxes and bank (for footers and e-invoices)</source>
        <translation>Dirección, impuestos y banco (para pies de página y facturas electrónicas)</translation>
    </message>
    <message>
        <source>Street:</source>
        <translation>Calle:</translation>
    </message>
    <message>
        <source>Postcode:</source>
        <translation>Código postal:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ciudad:</translation>
    </message>
    <message>
        <source>Country code:</source>
        <translation>Código de país:</translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation>Teléfono:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>Correo:</translation>
    </message>
    <message>
        <source>VAT ID:</source>
        <translation>NIF-IVA:</translation>
    </message>
    <message>
        <source>Tax number:</source>
        <translation>Número fiscal:</translation>
    </message>
    <message>
        <source>Bank:</source>
        <translation>Banco:</translation>
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
        <translation>Persona de contacto:</translation>
    </message>
    <message>
        <source>E-invoice address:</source>
        <translation>Dirección de factura electrónica:</translation>
    </message>
    <message>
        <source>Currency code:</source>
        <translation>Código de moneda:</translation>
    </message>
    <message>
        <source>Compose Footers…</source>
        <translation>Componer pies de página…</translation>
    </message>
    <message>
        <source>Pattern:</source>
        <translation>Patrón:</translation>
    </message>
    <message>
        <source>Counter:</source>
        <translation>Contador:</translation>
    </message>
    <message>
        <source>The counter</source>
        <translation>El contador</translation>
    </message>
    <message>
        <source>New documents get a number</source>
        <translation>Los nuevos documentos reciben un número</translation>
    </message>
    <message>
        <source>Days:</source>
        <translation>Días:</translation>
    </message>
    <message>
        <source>The number of days</source>
        <translation>El número de días</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Facturas</translation>
    </message>
    <message>
        <source>New invoices get a due date</source>
        <translation>Las nuevas facturas reciben una fecha de vencimiento</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Presupuestos</translation>
    </message>
    <message>
        <source>New quotes get a validity date</source>
        <translation>Los nuevos presupuestos reciben una fecha de validez</translation>
    </message>
    <message>
        <source>Patterns take %COUNT%, %YEAR%, %MONTH% and %DAY%.</source>
        <translation>Los patrones admiten %COUNT%, %YEAR%, %MONTH% y %DAY%.</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Printing or mailing marks an invoice as sent</source>
        <translation>Imprimir o enviar marca una factura como enviada</translation>
    </message>
    <message>
        <source>Print:</source>
        <translation>Impresión:</translation>
    </message>
    <message>
        <source>At once, on the default printer</source>
        <translation>De inmediato, en la impresora predeterminada</translation>
    </message>
    <message>
        <source>After the print dialog</source>
        <translation>Después del diálogo de impresión</translation>
    </message>
    <message>
        <source>Export documents as:</source>
        <translation>Exportar documentos como:</translation>
    </message>
    <message>
        <source>Tabo document</source>
        <translation>Documento de Tabo</translation>
    </message>
    <message>
        <source>XML</source>
        <translation>XML</translation>
    </message>
    <message>
        <source>Sort lines by:</source>
        <translation>Ordenar líneas por:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Order of entry</source>
        <translation>Orden de entrada</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Más recientes primero</translation>
    </message>
    <message>
        <source>Highest amount</source>
        <translation>Importe más alto</translation>
    </message>
    <message>
        <source>Rate (%)</source>
        <translation>Tipo (%)</translation>
    </message>
    <message>
        <source>Standard rate</source>
        <translation>Tipo general</translation>
    </message>
    <message>
        <source>Zero rated</source>
        <translation>Tipo cero</translation>
    </message>
    <message>
        <source>Exempt</source>
        <translation>Exento</translation>
    </message>
    <message>
        <source>Reverse charge</source>
        <translation>Inversión del sujeto pasivo</translation>
    </message>
    <message>
        <source>Intra-community supply</source>
        <translation>Entrega intracomunitaria</translation>
    </message>
    <message>
        <source>Export outside the EU</source>
        <translation>Exportación fuera de la UE</translation>
    </message>
    <message>
        <source>Not subject to VAT</source>
        <translation>No sujeto a IVA</translation>
    </message>
    <message>
        <source>E-invoice category</source>
        <translation>Categoría de factura electrónica</translation>
    </message>
    <message>
        <source>Reason when not charged</source>
        <translation>Motivo si no se cobra impuesto</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Impuesto %1</translation>
    </message>
    <message>
        <source>Compound</source>
        <translation>Compuesto</translation>
    </message>
    <message>
        <source>e.g. Steuerschuldnerschaft des Leistungsempfängers</source>
        <translation>p. ej. Inversión del sujeto pasivo</translation>
    </message>
    <message>
        <source>A compound tax is computed on the net amount plus the taxes before it.</source>
        <translation>Un impuesto compuesto se calcula sobre el importe neto más los impuestos anteriores.</translation>
    </message>
    <message>
        <source>Calculate new documents to the cent (EN 16931)</source>
        <translation>Calcular los nuevos documentos al céntimo (EN 16931)</translation>
    </message>
    <message>
        <source>Each line is rounded to the cent and each rate&apos;s VAT is taken after the discount. Compound taxes and lines with two taxes are calculated the classic way. Existing documents keep their figures.</source>
        <translation>Cada línea se redondea al céntimo y el IVA de cada tipo se calcula después del descuento. Los impuestos compuestos y las líneas con dos impuestos se calculan de la forma clásica. Los documentos existentes conservan sus importes.</translation>
    </message>
    <message>
        <source>Take the discount before taxes (classic calculation)</source>
        <translation>Aplicar el descuento antes de impuestos (cálculo clásico)</translation>
    </message>
    <message>
        <source>Show each line&apos;s tax amounts</source>
        <translation>Mostrar los importes de impuestos de cada línea</translation>
    </message>
    <message>
        <source>Show each line&apos;s amount before tax</source>
        <translation>Mostrar el importe sin impuestos de cada línea</translation>
    </message>
    <message>
        <source>Conditions:</source>
        <translation>Condiciones:</translation>
    </message>
    <message>
        <source>Footer:</source>
        <translation>Pie de página:</translation>
    </message>
    <message>
        <source>Free text:</source>
        <translation>Texto libre:</translation>
    </message>
    <message>
        <source>E-mail text:</source>
        <translation>Texto del correo:</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>These texts are copied into new documents and may hold HTML.</source>
        <translation>Estos textos se copian en los documentos nuevos y pueden contener HTML.</translation>
    </message>
    <message>
        <source>Paper and rows</source>
        <translation>Papel y filas</translation>
    </message>
    <message>
        <source>Paper size:</source>
        <translation>Tamaño del papel:</translation>
    </message>
    <message>
        <source>US Letter</source>
        <translation>US Carta</translation>
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
        <translation>Imprimir y escribir PDF sin márgenes</translation>
    </message>
    <message>
        <source>Show article numbers on rows</source>
        <translation>Mostrar las referencias en las filas</translation>
    </message>
    <message>
        <source>Account book font:</source>
        <translation>Fuente del libro de cuentas:</translation>
    </message>
    <message>
        <source>Number the account book&apos;s pages</source>
        <translation>Numerar las páginas del libro de cuentas</translation>
    </message>
    <message>
        <source>Print the account book with details</source>
        <translation>Imprimir el libro de cuentas con detalles</translation>
    </message>
    <message>
        <source>“%1” is no region; use a name such as de_DE or fr_FR.</source>
        <translation>“%1” no es una región; use un nombre como es_ES o fr_FR.</translation>
    </message>
    <message>
        <source>Documents&apos; region:</source>
        <translation>Región de los documentos:</translation>
    </message>
    <message>
        <source>Numbers, amounts and month names on documents follow this region.</source>
        <translation>Los números, importes y nombres de meses de los documentos siguen esta región.</translation>
    </message>
    <message>
        <source>Date pattern:</source>
        <translation>Patrón de fecha:</translation>
    </message>
    <message>
        <source>Today:</source>
        <translation>Hoy:</translation>
    </message>
    <message>
        <source>Address pattern:</source>
        <translation>Patrón de dirección:</translation>
    </message>
    <message>
        <source>Words printed on documents</source>
        <translation>Palabras impresas en los documentos</translation>
    </message>
    <message>
        <source>SKU number</source>
        <translation>Referencia</translation>
    </message>
    <message>
        <source>Net amounts</source>
        <translation>Importes netos</translation>
    </message>
    <message>
        <source>Line totals</source>
        <translation>Totales de las líneas</translation>
    </message>
    <message>
        <source>VAT ID</source>
        <translation>NIF-IVA</translation>
    </message>
    <message>
        <source>Install Language Defaults…</source>
        <translation>Instalar valores de idioma…</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Inglés</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Alemán</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francés</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Español</translation>
    </message>
    <message>
        <source>Install Language Defaults</source>
        <translation>Instalar valores de idioma</translation>
    </message>
    <message>
        <source>Language of the documents&apos; words and texts:</source>
        <translation>Idioma de las palabras y textos de los documentos:</translation>
    </message>
    <message>
        <source>Client number pattern:</source>
        <translation>Patrón del número de cliente:</translation>
    </message>
    <message>
        <source>Name in the salutation:</source>
        <translation>Nombre en el saludo:</translation>
    </message>
    <message>
        <source>Last name</source>
        <translation>Apellidos</translation>
    </message>
    <message>
        <source>First and last name</source>
        <translation>Nombre y apellidos</translation>
    </message>
    <message>
        <source>Title and last name</source>
        <translation>Tratamiento y apellidos</translation>
    </message>
    <message>
        <source>Title and first name</source>
        <translation>Tratamiento y nombre</translation>
    </message>
    <message>
        <source>Title, first and last name</source>
        <translation>Tratamiento, nombre y apellidos</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Choose Contacts File</source>
        <translation>Elegir archivo de contactos</translation>
    </message>
    <message>
        <source>Contacts (vCard file):</source>
        <translation>Contactos (archivo vCard):</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Base de datos</translation>
    </message>
    <message>
        <source>Keep the database in a folder of my choice</source>
        <translation>Guardar la base de datos en una carpeta de mi elección</translation>
    </message>
    <message>
        <source>Stored in:</source>
        <translation>Guardada en:</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Copias de seguridad</translation>
    </message>
    <message>
        <source>The automatic backup is kept in %1</source>
        <translation>La copia automática se guarda en %1</translation>
    </message>
    <message>
        <source>Show Automatic Backup</source>
        <translation>Mostrar la copia automática</translation>
    </message>
    <message>
        <source>Reminders While Tabo Is Closed</source>
        <translation>Recordatorios con Tabo cerrado</translation>
    </message>
    <message>
        <source>A timer of your desktop session shows due reminders every hour (%1).</source>
        <translation>Un temporizador de su sesión de escritorio muestra los recordatorios pendientes cada hora (%1).</translation>
    </message>
    <message>
        <source>Reminders arrive only while Tabo is open.</source>
        <translation>Los recordatorios solo llegan con Tabo abierto.</translation>
    </message>
    <message>
        <source>Remove Timer</source>
        <translation>Quitar temporizador</translation>
    </message>
    <message>
        <source>Install Timer</source>
        <translation>Instalar temporizador</translation>
    </message>
</context>
<context>
    <name>tabo::ReportWindow</name>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Only invoices dated from</source>
        <translation>Solo las facturas fechadas desde</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Guardar como PDF…</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimir…</translation>
    </message>
    <message>
        <source>to</source>
        <translation>a</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Desde:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Hasta:</translation>
    </message>
</context>
<context>
    <name>tabo::ScheduleWindow</name>
    <message>
        <source>Repeated Invoices</source>
        <translation>Facturas periódicas</translation>
    </message>
    <message>
        <source>Repeat the current invoice</source>
        <translation>Repetir la factura actual</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>months</source>
        <translation>meses</translation>
    </message>
    <message>
        <source>quarters</source>
        <translation>trimestres</translation>
    </message>
    <message>
        <source>years</source>
        <translation>años</translation>
    </message>
    <message>
        <source>weeks</source>
        <translation>semanas</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Último día</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>sin límite</translation>
    </message>
    <message>
        <source>E-mail each invoice when it is written (Tabo asks first)</source>
        <translation>Enviar cada factura por correo al emitirla (Tabo pregunta antes)</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>Invoice:</source>
        <translation>Factura:</translation>
    </message>
    <message>
        <source>Every:</source>
        <translation>Cada:</translation>
    </message>
    <message>
        <source>First on:</source>
        <translation>Primera el:</translation>
    </message>
    <message>
        <source>Number of invoices:</source>
        <translation>Número de facturas:</translation>
    </message>
    <message>
        <source>Repeated invoices</source>
        <translation>Facturas periódicas</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Próxima</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Emitidas</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Select an invoice in the list to repeat it.</source>
        <translation>Seleccione una factura en la lista para repetirla.</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pausa</translation>
    </message>
    <message>
        <source>ended</source>
        <translation>terminada</translation>
    </message>
</context>
<context>
    <name>tabo::ShippingPopover</name>
    <message>
        <source>Shipping</source>
        <translation>Envío</translation>
    </message>
    <message>
        <source>Remembered</source>
        <translation>Recordado</translation>
    </message>
    <message>
        <source>Charge shipping on this document</source>
        <translation>Cobrar el envío en este documento</translation>
    </message>
    <message>
        <source>Show a second line:</source>
        <translation>Mostrar una segunda línea:</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Título:</translation>
    </message>
    <message>
        <source>Amount (net):</source>
        <translation>Importe (neto):</translation>
    </message>
    <message>
        <source>Taxes:</source>
        <translation>Impuestos:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Nota:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importe</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Usar</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Impuesto %1</translation>
    </message>
    <message>
        <source>The shipping could not be changed.</source>
        <translation>No se pudo cambiar el envío.</translation>
    </message>
    <message>
        <source>Second line</source>
        <translation>Segunda línea</translation>
    </message>
</context>
<context>
    <name>tabo::ShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Atajo</translation>
    </message>
</context>
<context>
    <name>tabo::SummaryBar</name>
    <message>
        <source>Invoices</source>
        <translation>Facturas</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Presupuestos</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Pagada</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>Pendiente</translation>
    </message>
</context>
<context>
    <name>tabo::TemplatePopover</name>
    <message>
        <source>New Template</source>
        <translation>Nueva plantilla</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Plantillas</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation>Notas:</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Cliente</translation>
    </message>
    <message>
        <source>Heading and subject</source>
        <translation>Encabezado y asunto</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Artículos</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Envío</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Descuento</translation>
    </message>
    <message>
        <source>Include:</source>
        <translation>Incluir:</translation>
    </message>
    <message>
        <source>Save Template</source>
        <translation>Guardar plantilla</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Please give the template a name.</source>
        <translation>Dé un nombre a la plantilla.</translation>
    </message>
    <message>
        <source>There is no document to save as a template.</source>
        <translation>No hay ningún documento que guardar como plantilla.</translation>
    </message>
    <message>
        <source>Delete Template</source>
        <translation>Eliminar plantilla</translation>
    </message>
    <message>
        <source>Deleting templates is permanent and cannot be undone. Do you really want to delete the template “%1”?</source>
        <translation>Eliminar plantillas es definitivo y no se puede deshacer. ¿Seguro que quiere eliminar la plantilla “%1”?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>tabo::TextsPage</name>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>Condiciones</translation>
    </message>
    <message>
        <source>Footer</source>
        <translation>Pie de página</translation>
    </message>
    <message>
        <source>Extra text</source>
        <translation>Texto adicional</translation>
    </message>
    <message>
        <source>Second extra text</source>
        <translation>Segundo texto adicional</translation>
    </message>
</context>
<context>
    <name>tabo::TotalsPanel</name>
    <message>
        <source>Net</source>
        <translation>Neto</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Envío</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Descuento</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Impuesto %1</translation>
    </message>
</context>
<context>
    <name>tabo::UserGuideWindow</name>
    <message>
        <source>Tabo User Guide</source>
        <translation>Guía del usuario de Tabo</translation>
    </message>
    <message>
        <source>The user guide is not installed.</source>
        <translation>La guía del usuario no está instalada.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AccountBook</name>
    <message>
        <source>Hint!</source>
        <translation>Remarque !</translation>
    </message>
    <message>
        <source>This feature is bound to the arranged invoices in Tabo&apos;s main window. This means you can, for example, search for a client and therefore print out the account book just for this single client or you can pre-filter all your invoices to print out the account book only for paid or overdue invoices.</source>
        <translation>Cette fonction suit les factures rangées dans la fenêtre principale de Tabo. Vous pouvez par exemple rechercher un client et n’imprimer le livre de comptes que pour ce client, ou pré-filtrer vos factures pour ne l’imprimer que pour les factures payées ou en retard.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Erreur !</translation>
    </message>
    <message>
        <source>The account book could not be written.</source>
        <translation>Le livre de comptes n’a pas pu être écrit.</translation>
    </message>
    <message>
        <source>%1 | Account Book</source>
        <translation>%1 | Livre de comptes</translation>
    </message>
</context>
<context>
    <name>AccountBookCommand</name>
    <message>
        <source>Write the account book of the invoices a filter and search show as PDF.</source>
        <translation>Écrit en PDF le livre de comptes des factures affichées par un filtre et une recherche.</translation>
    </message>
    <message>
        <source>The PDF to write.</source>
        <translation>Le PDF à écrire.</translation>
    </message>
    <message>
        <source>Give the PDF to write with --pdf FILE.</source>
        <translation>Donnez le PDF à écrire avec --pdf FILE.</translation>
    </message>
    <message>
        <source>The account book could not be written to “%1”.</source>
        <translation>Le livre de comptes n’a pas pu être écrit dans “%1”.</translation>
    </message>
</context>
<context>
    <name>AccountingExport</name>
    <message>
        <source>Send Invoices To quandrella</source>
        <translation>Envoyer les factures à quandrella</translation>
    </message>
    <message>
        <source>Send Invoices To Vorlux</source>
        <translation>Envoyer les factures à Vorlux</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Erreur !</translation>
    </message>
    <message>
        <source>Could not write Vorlux/quandrella export data.</source>
        <translation>Les données d’export Vorlux/quandrella n’ont pas pu être écrites.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Vorlux/quandrella export file couldn&apos;t be opened. Please ensure that Vorlux or quandrella is installed on your Mac and running.</source>
        <translation>Le fichier d’export Vorlux/quandrella n’a pas pu être ouvert. Vérifiez que Vorlux ou quandrella est installé sur votre Mac et en marche.</translation>
    </message>
</context>
<context>
    <name>AccountingExportCommand</name>
    <message>
        <source>First day.</source>
        <translation>Premier jour.</translation>
    </message>
    <message>
        <source>Last day.</source>
        <translation>Dernier jour.</translation>
    </message>
    <message>
        <source>Which invoices.</source>
        <translation>Quelles factures.</translation>
    </message>
    <message>
        <source>How lines go over.</source>
        <translation>Comment les lignes sont reprises.</translation>
    </message>
    <message>
        <source>Only write the file.</source>
        <translation>Écrire seulement le fichier.</translation>
    </message>
    <message>
        <source>Unknown program “%1”.</source>
        <translation>Programme inconnu “%1”.</translation>
    </message>
    <message>
        <source>“%1” is not an ISO 8601 date.</source>
        <translation>“%1” n’est pas une date ISO 8601.</translation>
    </message>
    <message>
        <source>The kind is 0, 1 or 2.</source>
        <translation>Le type vaut 0, 1 ou 2.</translation>
    </message>
    <message>
        <source>The items kind is 0 or 1.</source>
        <translation>Le type d’articles vaut 0 ou 1.</translation>
    </message>
    <message>
        <source>Write the invoices in the date range (ISO 8601; by default all shown) and of a kind (0 all but created, 1 paid, 2 overdue) for an accounting program, with one summary line (items kind 0) or every line (1); kinds not given stay as last set. Opens the file unless --no-open. Prints the file and the number of invoices.</source>
        <translation>Écrit les factures de la période (ISO 8601 ; par défaut toutes celles affichées) et d’un type (0 toutes sauf créées, 1 payées, 2 en retard) pour un logiciel comptable, avec une ligne de synthèse (type d’articles 0) ou chaque ligne (1) ; les types non donnés restent comme la dernière fois. Ouvre le fichier sauf avec --no-open. Affiche le fichier et le nombre de factures.</translation>
    </message>
</context>
<context>
    <name>AddItemCommand</name>
    <message>
        <source>“%1” is not a unit code of UN/ECE Recommendation 20 (such as HUR, C62, DAY).</source>
        <translation>“%1” n’est pas un code d’unité de la Recommandation 20 de la CEE-ONU (comme HUR, C62, DAY).</translation>
    </message>
    <message>
        <source>Add a line to a document as the item popover does, e.g. title=Consulting price=100 quantity=2 tax1=1 (also subtitle, unit, unitCode, sku, note; baseAmount, unitCount, isTax1Applied..3 are the same fields). Rates, tax titles and compound flags come from the preferences; any other line attribute is set afterwards. The catalogue remembers the line. Prints the line&apos;s unique ID.</source>
        <translation>Ajoute une ligne à un document comme la fenêtre d’article, p. ex. title=Conseil price=100 quantity=2 tax1=1 (aussi subtitle, unit, unitCode, sku, note ; baseAmount, unitCount, isTax1Applied..3 sont les mêmes champs). Taux, noms de taxes et taxes composées viennent des préférences ; tout autre attribut de ligne est défini ensuite. Le catalogue mémorise la ligne. Affiche l’identifiant unique de la ligne.</translation>
    </message>
</context>
<context>
    <name>AddressCommand</name>
    <message>
        <source>Set a document&apos;s client as the address popover does, from contact N (default 1) of a vCard file by the address pattern and from the keys </source>
        <translation>Définit le client d’un document comme la fenêtre d’adresse : à partir du contact N (1 par défaut) d’un fichier vCard selon le modèle d’adresse et des clés </translation>
    </message>
    <message>
        <source>Take the contact from a vCard file.</source>
        <translation>Prendre le contact dans un fichier vCard.</translation>
    </message>
    <message>
        <source>Which contact of the file, 1 for the first.</source>
        <translation>Quel contact du fichier, 1 pour le premier.</translation>
    </message>
    <message>
        <source>Give a vCard file or at least one field.</source>
        <translation>Donnez un fichier vCard ou au moins un champ.</translation>
    </message>
    <message>
        <source>“%1” is not a contact number.</source>
        <translation>“%1” n’est pas un numéro de contact.</translation>
    </message>
    <message>
        <source>. Fields not given are empty, as in a fresh popover. The address is remembered unless it already is.</source>
        <translation>. Les champs non donnés sont vides, comme dans une fenêtre neuve. L’adresse est mémorisée sauf si elle l’est déjà.</translation>
    </message>
    <message>
        <source>The vCard file holds %1 contact(s); there is no contact %2.</source>
        <translation>Le fichier vCard contient %1 contact(s) ; il n’y a pas de contact %2.</translation>
    </message>
    <message>
        <source>--contact needs --vcard.</source>
        <translation>--contact demande --vcard.</translation>
    </message>
</context>
<context>
    <name>AddressPopover</name>
    <message>
        <source>Error!</source>
        <translation>Erreur !</translation>
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
        <translation>Impossible d’initialiser le stockage</translation>
    </message>
    <message>
        <source>There was an error building up the data file.</source>
        <translation>Une erreur s’est produite lors de la construction du fichier de données.</translation>
    </message>
    <message>
        <source>Warning!</source>
        <translation>Attention !</translation>
    </message>
    <message>
        <source>Tabo 2 comes with new features that require the database to be updated.
Once updated you will not be able to open and edit it with an older version of Tabo.

In case you don&apos;t want to upgrade to Tabo 2 - which is a paid upgrade - you need to quit Tabo 2 right now and just continue working with Tabo 1.

Do you want to update the database and use Tabo 2?</source>
        <translation>Tabo 2 apporte de nouvelles fonctions qui exigent la mise à jour de la base de données.
Une fois mise à jour, vous ne pourrez plus l’ouvrir ni la modifier avec une version antérieure de Tabo.

Si vous ne voulez pas passer à Tabo 2 — une mise à niveau payante —, quittez Tabo 2 maintenant et continuez simplement avec Tabo 1.

Voulez-vous mettre à jour la base de données et utiliser Tabo 2 ?</translation>
    </message>
    <message>
        <source>Don&apos;t Update Database and Quit Tabo 2</source>
        <translation>Ne pas mettre à jour la base et quitter Tabo 2</translation>
    </message>
    <message>
        <source>Update Database And Use Tabo 2</source>
        <translation>Mettre à jour la base et utiliser Tabo 2</translation>
    </message>
    <message>
        <source>The folder “%1” could not be created.</source>
        <translation>Le dossier “%1” n’a pas pu être créé.</translation>
    </message>
    <message>
        <source>Expected a folder to store application data, found a file (%1).</source>
        <translation>Un dossier était attendu pour les données de l’application, un fichier a été trouvé (%1).</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Erreur !</translation>
    </message>
    <message>
        <source>

The empty file can be kept as “%1” and a new database started with the documents of the automatic backup “%2”.</source>
        <translation>

Le fichier vide peut être conservé sous “%1” et une nouvelle base de données commencée avec les documents de la sauvegarde automatique “%2”.</translation>
    </message>
    <message>
        <source>Restore Automatic Backup</source>
        <translation>Restaurer la sauvegarde automatique</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>“%1” could not be renamed.</source>
        <translation>“%1” n’a pas pu être renommé.</translation>
    </message>
    <message>
        <source>Changed Elsewhere</source>
        <translation>Modifié ailleurs</translation>
    </message>
    <message>
        <source>“%1” was changed by another program (another Tabo window or tabo-cli) after it was read here. Keep your changes and overwrite the other ones, or reload the stored version and lose your changes?</source>
        <translation>“%1” a été modifié par un autre programme (une autre fenêtre Tabo ou tabo-cli) après sa lecture ici. Garder vos modifications et écraser les autres, ou recharger la version enregistrée et perdre vos modifications ?</translation>
    </message>
    <message>
        <source>Keep My Changes</source>
        <translation>Garder mes modifications</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recharger</translation>
    </message>
    <message>
        <source>Each line is rounded to the cent and the VAT of each rate is taken on the amount after the discount, which is what tax offices and e-invoices (EN 16931) expect.</source>
        <translation>Chaque ligne est arrondie au centime et la TVA de chaque taux est calculée sur le montant après remise, comme l’attendent l’administration fiscale et les factures électroniques (EN 16931).</translation>
    </message>
    <message>
        <source>Compose Footers?</source>
        <translation>Composer les pieds de page ?</translation>
    </message>
    <message>
        <source>The footers of invoices, quotes, reminders and delivery slips are replaced by one made from your company&apos;s address, tax and bank details:

%1</source>
        <translation>Les pieds de page des factures, devis, relances et bons de livraison sont remplacés par un pied composé de l’adresse, des données fiscales et bancaires de votre entreprise :

%1</translation>
    </message>
    <message>
        <source>Compose</source>
        <translation>Composer</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>Les modifications n’ont pas pu être enregistrées en quittant. Quitter quand même ?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Quitter maintenant perdra toutes les modifications faites depuis le dernier enregistrement réussi</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Quitter quand même</translation>
    </message>
    <message>
        <source>The folder “%1” does not exist.</source>
        <translation>Le dossier “%1” n’existe pas.</translation>
    </message>
    <message>
        <source>The database could not be moved to “%1”.</source>
        <translation>La base de données n’a pas pu être déplacée vers “%1”.</translation>
    </message>
    <message>
        <source>Hint!</source>
        <translation>Remarque !</translation>
    </message>
    <message>
        <source>For your own safety Tabo will create a backup of your current data before moving your database to the changed location. You may want to save it temporarily on your desktop.

Afterwards Tabo will automatically restart.</source>
        <translation>Pour votre sécurité, Tabo sauvegarde vos données actuelles avant de déplacer la base de données vers le nouvel emplacement. Vous pouvez enregistrer cette sauvegarde temporairement sur votre bureau.

Ensuite, Tabo redémarre automatiquement.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Choose Custom Database Path</source>
        <translation>Choisir un chemin de base de données</translation>
    </message>
    <message>
        <source>Install %1 Defaults?</source>
        <translation>Installer les réglages par défaut %1 ?</translation>
    </message>
    <message>
        <source>The labels, text blocks, numbering patterns and counters, taxes and paper size are replaced by the %1 defaults. Your company details, documents and designs stay as they are.</source>
        <translation>Les libellés, textes types, modèles et compteurs de numéros, taxes et format du papier sont remplacés par les réglages par défaut %1. Les données de votre entreprise, vos documents et vos designs restent tels quels.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Database Updated</source>
        <translation>Base de données mise à jour</translation>
    </message>
    <message>
        <source>The database was successfully updated. In case your old invoices don&apos;t show up just restart Tabo 2 and everything will be fine.</source>
        <translation>La base de données a bien été mise à jour. Si vos anciennes factures n’apparaissent pas, redémarrez simplement Tabo 2 et tout ira bien.</translation>
    </message>
    <message>
        <source>Tabo, Tabo Documents, and the Tabo Database</source>
        <translation>Tabo, les documents Tabo et la base de données Tabo</translation>
    </message>
    <message>
        <source>In order to avoid duplicate entries, hiccups, and to keep the database intact - please use the &apos;File Menu&apos; to open documents and to restore the Tabo database.</source>
        <translation>Pour éviter les doublons et les accrocs et garder la base de données intacte, veuillez utiliser le menu “Fichier” pour ouvrir des documents et restaurer la base de données Tabo.</translation>
    </message>
    <message>
        <source>“%1” of “%2” was changed by another program (another Tabo window or tabo-cli) while you were editing it.

Stored now: %3
Yours: %4

Keep your changes and overwrite the other ones, or reload the stored version and lose your changes?</source>
        <translation>“%1” de “%2” a été modifié par un autre programme (une autre fenêtre Tabo ou tabo-cli) pendant que vous le modifiiez.

Enregistré : %3
Le vôtre : %4

Garder vos modifications et écraser les autres, ou recharger la version enregistrée et perdre vos modifications ?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Statut</translation>
    </message>
    <message>
        <source>Typing</source>
        <translation>Saisie</translation>
    </message>
    <message>
        <source>Due Date Before Invoice Date</source>
        <translation>Échéance avant la date de facture</translation>
    </message>
    <message>
        <source>The invoice would be due on %1, before its own date, %2: it would be overdue the moment it is sent. Keep this due date?</source>
        <translation>La facture serait due le %1, avant sa propre date, le %2 : elle serait en retard dès son envoi. Garder cette échéance ?</translation>
    </message>
    <message>
        <source>Keep Due Date</source>
        <translation>Garder l’échéance</translation>
    </message>
    <message>
        <source>Nothing was imported from “%1”.</source>
        <translation>Rien n’a été importé de “%1”.</translation>
    </message>
    <message>
        <source>It is an invoice dump, which no restore reads.</source>
        <translation>C’est un vidage de factures, qu’aucune restauration ne lit.</translation>
    </message>
    <message>
        <source>Repeated Invoices</source>
        <translation>Factures récurrentes</translation>
    </message>
    <message>
        <source>Send Repeated Invoices</source>
        <translation>Envoyer les factures récurrentes</translation>
    </message>
    <message>
        <source>These repeated invoices were written and are to be e-mailed:

%1

Open a message for each now?</source>
        <translation>Ces factures récurrentes ont été établies et doivent être envoyées par e-mail :

%1

Ouvrir un message pour chacune maintenant ?</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Pas maintenant</translation>
    </message>
</context>
<context>
    <name>AttributeText</name>
    <message>
        <source>“%1” is not a valid %2 for %3.</source>
        <translation>“%1” n’est pas une valeur valide de %2 pour %3.</translation>
    </message>
    <message>
        <source>“%1” is a relationship of %2, not an attribute.</source>
        <translation>“%1” est une relation de %2, pas un attribut.</translation>
    </message>
    <message>
        <source>“%1” is too large for %2 (at most %3).</source>
        <translation>“%1” est trop grand pour %2 (au plus %3).</translation>
    </message>
    <message>
        <source>about 3.4e38</source>
        <translation>environ 3,4e38</translation>
    </message>
    <message>
        <source>about 1.8e308</source>
        <translation>environ 1,8e308</translation>
    </message>
</context>
<context>
    <name>BackupCommand</name>
    <message>
        <source>Back up the whole database (prints the .tabo2db written), the documents or the catalogue to FILE, or the documents to the automatic backup (prints its path).</source>
        <translation>Sauvegarde toute la base de données (affiche le .tabo2db écrit), les documents ou le catalogue dans FILE, ou les documents dans la sauvegarde automatique (affiche son chemin).</translation>
    </message>
    <message>
        <source>The automatic backup has its own place.</source>
        <translation>La sauvegarde automatique a son propre emplacement.</translation>
    </message>
    <message>
        <source>The automatic backup “%1” could not be written. %2</source>
        <translation>La sauvegarde automatique “%1” n’a pas pu être écrite. %2</translation>
    </message>
    <message>
        <source>Missing FILE.</source>
        <translation>FILE manquant.</translation>
    </message>
    <message>
        <source>Unknown backup “%1”.</source>
        <translation>Sauvegarde inconnue “%1”.</translation>
    </message>
</context>
<context>
    <name>BackupCommands</name>
    <message>
        <source>Error!</source>
        <translation>Erreur !</translation>
    </message>
    <message>
        <source>Warning!</source>
        <translation>Attention !</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>Restaurer…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>remembered addresses, which no restore replaces</source>
        <translation>des adresses mémorisées, qu’aucune restauration ne remplace</translation>
    </message>
    <message>
        <source>remembered shipping lines, which no restore replaces</source>
        <translation>des lignes d’expédition mémorisées, qu’aucune restauration ne remplace</translation>
    </message>
    <message>
        <source>records no restore replaces</source>
        <translation>des enregistrements qu’aucune restauration ne remplace</translation>
    </message>
    <message>
        <source>It is a PDF file.</source>
        <translation>C’est un fichier PDF.</translation>
    </message>
    <message>
        <source>It is an invoice dump, which no restore reads.</source>
        <translation>C’est un vidage de factures, qu’aucune restauration ne lit.</translation>
    </message>
    <message>
        <source>It holds a single record, not a list of them.</source>
        <translation>Il contient un seul enregistrement, pas une liste.</translation>
    </message>
    <message>
        <source>It does not hold a list of records.</source>
        <translation>Il ne contient pas de liste d’enregistrements.</translation>
    </message>
    <message>
        <source>There is no database to back up.</source>
        <translation>Il n’y a pas de base de données à sauvegarder.</translation>
    </message>
    <message>
        <source>No backup was taken: the database fails its check, and a backup of it would be no better. %1</source>
        <translation>Aucune sauvegarde n’a été faite : la base de données échoue à sa vérification, et une sauvegarde ne vaudrait pas mieux. %1</translation>
    </message>
    <message>
        <source>Unable to write %1: %2</source>
        <translation>Impossible d’écrire %1 : %2</translation>
    </message>
    <message>
        <source>Entry %1 is not a record.</source>
        <translation>L’entrée %1 n’est pas un enregistrement.</translation>
    </message>
    <message>
        <source>It holds %1.</source>
        <translation>Il contient %1.</translation>
    </message>
    <message>
        <source>It could not be read.</source>
        <translation>Il n’a pas pu être lu.</translation>
    </message>
    <message>
        <source>The file “%1” is not a %2. %3</source>
        <translation>Le fichier “%1” n’est pas une %2. %3</translation>
    </message>
    <message>
        <source>There is no database to restore into.</source>
        <translation>Il n’y a pas de base de données où restaurer.</translation>
    </message>
    <message>
        <source>Backup Tabo Database</source>
        <translation>Sauvegarder la base de données Tabo</translation>
    </message>
    <message>
        <source>Tabo 2 Database</source>
        <translation>Base de données Tabo 2</translation>
    </message>
    <message>
        <source>You are about to restore your entire Tabo database from a backup. This will irretrievably replace any existing data. Do you really want to do that?</source>
        <translation>Vous allez restaurer toute votre base de données Tabo depuis une sauvegarde. Toutes les données existantes seront remplacées irrémédiablement. Voulez-vous vraiment le faire ?</translation>
    </message>
    <message>
        <source>Restore Tabo 2 Database</source>
        <translation>Restaurer la base de données Tabo 2</translation>
    </message>
    <message>
        <source>The file “%1” could not be restored. No working copy could be made beside the database.</source>
        <translation>Le fichier “%1” n’a pas pu être restauré. Aucune copie de travail n’a pu être faite à côté de la base de données.</translation>
    </message>
    <message>
        <source>The file “%1” could not be restored. %2</source>
        <translation>Le fichier “%1” n’a pas pu être restauré. %2</translation>
    </message>
    <message>
        <source>The file “%1” is not a Tabo database backup. %2</source>
        <translation>Le fichier “%1” n’est pas une sauvegarde de base de données Tabo. %2</translation>
    </message>
    <message>
        <source>The database could not be restored from “%1”. %2 Your previous data are still in place.</source>
        <translation>La base de données n’a pas pu être restaurée depuis “%1”. %2 Vos données précédentes sont toujours en place.</translation>
    </message>
    <message>
        <source>Backup Tabo Invoices</source>
        <translation>Sauvegarder les factures Tabo</translation>
    </message>
    <message>
        <source>Tabo Invoices</source>
        <translation>Factures Tabo</translation>
    </message>
    <message>
        <source>You are about to restore your Tabo invoices from a backup. This will irretrievably replace any existing invoices. Do you really want to do that?</source>
        <translation>Vous allez restaurer vos factures Tabo depuis une sauvegarde. Toutes les factures existantes seront remplacées irrémédiablement. Voulez-vous vraiment le faire ?</translation>
    </message>
    <message>
        <source>Restore Tabo Invoices</source>
        <translation>Restaurer les factures Tabo</translation>
    </message>
    <message>
        <source>Backup Tabo Items</source>
        <translation>Sauvegarder les articles Tabo</translation>
    </message>
    <message>
        <source>Tabo Items</source>
        <translation>Articles Tabo</translation>
    </message>
    <message>
        <source>You are about to restore your Tabo items from a backup. This will irretrievably replace any existing items. Do you really want to do that?</source>
        <translation>Vous allez restaurer vos articles Tabo depuis une sauvegarde. Tous les articles existants seront remplacés irrémédiablement. Voulez-vous vraiment le faire ?</translation>
    </message>
    <message>
        <source>Restore Tabo Items</source>
        <translation>Restaurer les articles Tabo</translation>
    </message>
    <message>
        <source>Tabo invoice backup</source>
        <translation>Sauvegarde de factures Tabo</translation>
    </message>
    <message>
        <source>Tabo item backup</source>
        <translation>Sauvegarde d’articles Tabo</translation>
    </message>
    <message>
        <source>No valid backup file available. Please restore your Tabo database from your own (Time Machine) backups.</source>
        <translation>Aucun fichier de sauvegarde valide. Veuillez restaurer votre base de données Tabo à partir de vos propres sauvegardes (Time Machine).</translation>
    </message>
    <message>
        <source>Could not restore Tabo database automatically. Please do this by hand. In case of problems, simply contact the Pemra support.</source>
        <translation>La base de données Tabo n’a pas pu être restaurée automatiquement. Veuillez le faire à la main. En cas de problème, contactez simplement l’assistance Pemra.</translation>
    </message>
    <message>
        <source>No working copy could be made beside the database.</source>
        <translation>Aucune copie de travail n’a pu être faite à côté de la base de données.</translation>
    </message>
    <message>
        <source>Failed to create writable database file with message &apos;%1&apos;.</source>
        <translation>Impossible de créer un fichier de base de données modifiable, message : &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The database “%1” cannot be used.</source>
        <translation>La base de données “%1” ne peut pas être utilisée.</translation>
    </message>
    <message>
        <source>The database “%1” could not be replaced.</source>
        <translation>La base de données “%1” n’a pas pu être remplacée.</translation>
    </message>
    <message>
        <source>documents (an invoice backup or an XML export); restore it with File ▸ Restore Invoices… or tabo-cli restore invoices</source>
        <translation>des documents (une sauvegarde de factures ou un export XML) ; restaurez-la avec Fichier ▸ Restaurer les factures… ou tabo-cli restore invoices</translation>
    </message>
    <message>
        <source>catalogue items (an item backup); restore it with File ▸ Restore Items… or tabo-cli restore items</source>
        <translation>des articles du catalogue (une sauvegarde d’articles) ; restaurez-la avec Fichier ▸ Restaurer les articles… ou tabo-cli restore items</translation>
    </message>
    <message>
        <source>designs; import them from the Design pane</source>
        <translation>des designs ; importez-les depuis la section Design</translation>
    </message>
    <message>
        <source>It is a complete database backup; restore it with File ▸ Restore Database… or tabo-cli restore database.</source>
        <translation>C’est une sauvegarde complète de la base de données ; restaurez-la avec Fichier ▸ Restaurer la base de données… ou tabo-cli restore database.</translation>
    </message>
    <message>
        <source>It is a single exported document or a design; import it with File ▸ Import… or from the Design pane.</source>
        <translation>C’est un document exporté seul ou un design ; importez-le avec Fichier ▸ Importer… ou depuis la section Design.</translation>
    </message>
</context>
<context>
    <name>BinaryPlist</name>
    <message>
        <source>cannot write a value of type %1</source>
        <translation>impossible d’écrire une valeur de type %1</translation>
    </message>
    <message>
        <source>invalid date</source>
        <translation>date non valide</translation>
    </message>
    <message>
        <source>truncated binary property list</source>
        <translation>liste de propriétés binaire tronquée</translation>
    </message>
    <message>
        <source>damaged binary property list trailer</source>
        <translation>fin de liste de propriétés binaire endommagée</translation>
    </message>
    <message>
        <source>cyclic object reference</source>
        <translation>référence d’objet cyclique</translation>
    </message>
    <message>
        <source>object offset out of range</source>
        <translation>décalage d’objet hors limites</translation>
    </message>
    <message>
        <source>damaged length</source>
        <translation>longueur endommagée</translation>
    </message>
    <message>
        <source>unknown object type 0x%1</source>
        <translation>type d’objet inconnu 0x%1</translation>
    </message>
    <message>
        <source>object extends past the data</source>
        <translation>l’objet dépasse la fin des données</translation>
    </message>
    <message>
        <source>element count larger than the data</source>
        <translation>nombre d’éléments supérieur aux données</translation>
    </message>
    <message>
        <source>object reference out of range</source>
        <translation>référence d’objet hors limites</translation>
    </message>
    <message>
        <source>too many values</source>
        <translation>trop de valeurs</translation>
    </message>
    <message>
        <source>dictionary key is not a string</source>
        <translation>la clé du dictionnaire n’est pas une chaîne</translation>
    </message>
</context>
<context>
    <name>CalcCommand</name>
    <message>
        <source>Recalculate the totals of a document.</source>
        <translation>Recalcule les totaux d’un document.</translation>
    </message>
</context>
<context>
    <name>CatalogueCommand</name>
    <message>
        <source>The catalogue has no entry “%1”.</source>
        <translation>Le catalogue n’a pas d’entrée “%1”.</translation>
    </message>
    <message>
        <source>Give the entries to delete.</source>
        <translation>Donnez les entrées à supprimer.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>Afficher en JSON.</translation>
    </message>
    <message>
        <source>Unknown catalogue “%1”.</source>
        <translation>Catalogue inconnu “%1”.</translation>
    </message>
    <message>
        <source>List the article catalogue (title, price, article number, unit) or the remembered shipping lines (title, amount), by title; change an entry (title, subtitle, unit, sku, note, price, tax1..tax3) or delete entries. ENTRY is a title, an article number or a uniqueID.</source>
        <translation>Liste le catalogue d’articles (titre, prix, référence, unité) ou les lignes d’expédition mémorisées (titre, montant), par titre ; modifie une entrée (title, subtitle, unit, sku, note, price, tax1..tax3) ou supprime des entrées. ENTRY est un titre, une référence ou un uniqueID.</translation>
    </message>
    <message>
        <source>Give the entry and at least one KEY=VALUE.</source>
        <translation>Donnez l’entrée et au moins une CLÉ=VALEUR.</translation>
    </message>
</context>
<context>
    <name>CliInteraction</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Don&apos;t Update Database and Quit Tabo 2</source>
        <translation>Ne pas mettre à jour la base et quitter Tabo 2</translation>
    </message>
</context>
<context>
    <name>Command</name>
    <message>
        <source>Show this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message>
        <source>Missing argument.</source>
        <translation>Argument manquant.</translation>
    </message>
    <message>
        <source>Too many arguments.</source>
        <translation>Trop d’arguments.</translation>
    </message>
    <message>
        <source>Confirm the questions the command asks.</source>
        <translation>Confirmer les questions posées par la commande.</translation>
    </message>
    <message>
        <source>Filter tag.</source>
        <translation>Étiquette de filtre.</translation>
    </message>
    <message>
        <source>The list&apos;s search.</source>
        <translation>La recherche de la liste.</translation>
    </message>
    <message>
        <source>“%1” is not a filter tag.</source>
        <translation>“%1” n’est pas une étiquette de filtre.</translation>
    </message>
    <message>
        <source>Usage: </source>
        <translation>Utilisation : </translation>
    </message>
    <message>
        <source>Unknown key “%1”; known keys: %2.</source>
        <translation>Clé inconnue “%1” ; clés connues : %2.</translation>
    </message>
</context>
<context>
    <name>Console</name>
    <message>
        <source>“%1” names %2 %3; use one of their unique IDs: %4.</source>
        <translation>“%1” désigne %2 %3 ; utilisez l’un de leurs identifiants uniques : %4.</translation>
    </message>
</context>
<context>
    <name>Contacts</name>
    <message>
        <source>The vCard data holds no usable contact.</source>
        <translation>Les données vCard ne contiennent aucun contact utilisable.</translation>
    </message>
    <message>
        <source>The data is not a vCard file.</source>
        <translation>Les données ne sont pas un fichier vCard.</translation>
    </message>
    <message>
        <source>The vCard file “%1” holds no usable contact.</source>
        <translation>Le fichier vCard “%1” ne contient aucun contact utilisable.</translation>
    </message>
    <message>
        <source>The file “%1” is not a vCard file.</source>
        <translation>Le fichier “%1” n’est pas un fichier vCard.</translation>
    </message>
    <message>
        <source>The file “%1” could not be read.</source>
        <translation>Le fichier “%1” n’a pas pu être lu.</translation>
    </message>
    <message>
        <source>The file “%1” is too large for a vCard file.</source>
        <translation>Le fichier “%1” est trop volumineux pour un fichier vCard.</translation>
    </message>
    <message>
        <source>You need to provide an address pattern in the Preferences.</source>
        <translation>Vous devez indiquer un modèle d’adresse dans les préférences.</translation>
    </message>
</context>
<context>
    <name>ConvertCommand</name>
    <message>
        <source>Convert a quote into an invoice (new number, title and texts); cannot be undone, so it needs --yes.</source>
        <translation>Convertit un devis en facture (nouveau numéro, titre et textes) ; irréversible, il faut donc --yes.</translation>
    </message>
</context>
<context>
    <name>CsvStatement</name>
    <message>
        <source>“%1” is no column of a statement; the columns are date, amount, credit, debit, currency, payer, iban, text and reference.</source>
        <translation>« %1 » n’est pas une colonne d’un relevé ; les colonnes sont date, amount, credit, debit, currency, payer, iban, text et reference.</translation>
    </message>
    <message>
        <source>The file has no column “%1”.</source>
        <translation>Le fichier n’a pas de colonne « %1 ».</translation>
    </message>
    <message>
        <source>A statement needs at least its date and amount columns (or credit).</source>
        <translation>Un relevé a besoin au moins des colonnes de date et de montant (ou de crédit).</translation>
    </message>
    <message>
        <source>This is not a bank statement Tabo reads (CAMT.053, CAMT.054, MT940 or CSV): it has no heading of three or more columns.</source>
        <translation>Ce n’est pas un relevé que Tabo lit (CAMT.053, CAMT.054, MT940 ou CSV) : il n’a pas d’en-tête de trois colonnes ou plus.</translation>
    </message>
    <message>
        <source>Entry %1 has no amount that can be read: “%2”.</source>
        <translation>L’écriture %1 n’a pas de montant lisible : « %2 ».</translation>
    </message>
</context>
<context>
    <name>DeleteCommand</name>
    <message>
        <source>Delete a document (needs --yes). With --adjust-counter the invoice or quote counter is raised so that no number is used twice.</source>
        <translation>Supprime un document (demande --yes). Avec --adjust-counter, le compteur de factures ou de devis est relevé pour qu’aucun numéro ne serve deux fois.</translation>
    </message>
    <message>
        <source>Answer “Adjust Counter” after the deletion.</source>
        <translation>Répondre “Adjust Counter” après la suppression.</translation>
    </message>
    <message>
        <source>Adjust Counter</source>
        <translation>Ajuster le compteur</translation>
    </message>
</context>
<context>
    <name>DeleteItemCommand</name>
    <message>
        <source>“%1” is not a line number.</source>
        <translation>“%1” n’est pas un numéro de ligne.</translation>
    </message>
    <message>
        <source>Delete line N (1 is the first, in the order the editor shows) of a document; needs --yes.</source>
        <translation>Supprime la ligne N (1 est la première, dans l’ordre de l’éditeur) d’un document ; demande --yes.</translation>
    </message>
    <message>
        <source>Document “%1” has no line %2; it has %3.</source>
        <translation>Le document “%1” n’a pas de ligne %2 ; il en a %3.</translation>
    </message>
</context>
<context>
    <name>DesignCommand</name>
    <message>
        <source>No design available. Please download or create a design.</source>
        <translation>Aucun design disponible. Veuillez télécharger ou créer un design.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>Afficher en JSON.</translation>
    </message>
    <message>
        <source>Design to preview.</source>
        <translation>Design à prévisualiser.</translation>
    </message>
    <message>
        <source>The page&apos;s HTML file.</source>
        <translation>Le fichier HTML de la page.</translation>
    </message>
    <message>
        <source>The row&apos;s HTML file.</source>
        <translation>Le fichier HTML de la ligne.</translation>
    </message>
    <message>
        <source>The stylesheet file.</source>
        <translation>Le fichier de feuille de style.</translation>
    </message>
    <message>
        <source>Name at least one of --invoice, --item and --css.</source>
        <translation>Indiquez au moins l’une des options --invoice, --item et --css.</translation>
    </message>
    <message>
        <source> Run “tabo-cli prefs install-language N” to install the built-in designs, or “tabo-cli design add”.</source>
        <translation> Lancez “tabo-cli prefs install-language N” pour installer les designs fournis, ou “tabo-cli design add”.</translation>
    </message>
    <message>
        <source>The design could not be added.</source>
        <translation>Le design n’a pas pu être ajouté.</translation>
    </message>
    <message>
        <source>The PDF file “%1” could not be created.</source>
        <translation>Le fichier PDF “%1” n’a pas pu être créé.</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>“%1” ne peut pas être lu.</translation>
    </message>
    <message>
        <source>“%1” is not UTF-8 text.</source>
        <translation>“%1” n’est pas du texte UTF-8.</translation>
    </message>
    <message>
        <source>Manage the designs documents are rendered with; preview writes the sample document through a design (the default one unless --design) as a PDF. get writes a design&apos;s page, row and stylesheet to files and set reads them back, to edit a design in any editor. TITLE may also be a design&apos;s unique ID.</source>
        <translation>Gère les designs avec lesquels les documents sont rendus ; preview écrit le document d’exemple au travers d’un design (celui par défaut sauf avec --design) en PDF. get écrit la page, la ligne et la feuille de style d’un design dans des fichiers et set les relit, pour modifier un design dans n’importe quel éditeur. TITLE peut aussi être l’identifiant unique d’un design.</translation>
    </message>
    <message>
        <source>--json belongs to “design list”.</source>
        <translation>--json va avec “design list”.</translation>
    </message>
    <message>
        <source>--design belongs to “design preview”.</source>
        <translation>--design va avec “design preview”.</translation>
    </message>
    <message>
        <source>--invoice, --item and --css belong to “design get” and “design set”.</source>
        <translation>--invoice, --item et --css vont avec “design get” et “design set”.</translation>
    </message>
</context>
<context>
    <name>DesignFile</name>
    <message>
        <source>Not an archive: %1</source>
        <translation>Pas une archive : %1</translation>
    </message>
    <message>
        <source>The archive holds no “%1”.</source>
        <translation>L’archive ne contient pas de “%1”.</translation>
    </message>
</context>
<context>
    <name>DesignLibrary</name>
    <message>
        <source>New Design</source>
        <translation>Nouveau design</translation>
    </message>
    <message>
        <source>Delete Design</source>
        <translation>Supprimer le design</translation>
    </message>
    <message>
        <source>Deleting designs is permanent and cannot be undone. Do you really want to delete the selected design?</source>
        <translation>La suppression d’un design est définitive et ne peut pas être annulée. Voulez-vous vraiment supprimer le design choisi ?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Import Tabo Design</source>
        <translation>Importer un design Tabo</translation>
    </message>
    <message>
        <source>The design “%1” could not be imported.</source>
        <translation>Le design “%1” n’a pas pu être importé.</translation>
    </message>
    <message>
        <source>There is no store to import into.</source>
        <translation>Il n’y a pas de stockage où importer.</translation>
    </message>
    <message>
        <source>The file is not a Tabo design.</source>
        <translation>Le fichier n’est pas un design Tabo.</translation>
    </message>
    <message>
        <source>The file is not a Tabo design. %1</source>
        <translation>Le fichier n’est pas un design Tabo. %1</translation>
    </message>
    <message>
        <source>Export Tabo Design</source>
        <translation>Exporter le design Tabo</translation>
    </message>
    <message>
        <source>The design could not be exported to “%1”.</source>
        <translation>Le design n’a pas pu être exporté vers “%1”.</translation>
    </message>
    <message>
        <source>No design is selected.</source>
        <translation>Aucun design n’est choisi.</translation>
    </message>
    <message>
        <source>The design could not be archived. %1</source>
        <translation>Le design n’a pas pu être archivé. %1</translation>
    </message>
</context>
<context>
    <name>DesignPreview</name>
    <message>
        <source>Ooops!</source>
        <translation>Oups !</translation>
    </message>
    <message>
        <source>Something went really wrong while creating the preview.</source>
        <translation>Quelque chose s’est vraiment mal passé lors de la création de l’aperçu.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Facture</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Erreur !</translation>
    </message>
</context>
<context>
    <name>DiscountCommand</name>
    <message>
        <source>Edit the discount (keys: </source>
        <translation>Modifier la remise (touches : </translation>
    </message>
    <message>
        <source>“%1” is not a valid kind; 0 is a fixed amount, 1 a percentage.</source>
        <translation>“%1” n’est pas un type valide ; 0 est un montant fixe, 1 un pourcentage.</translation>
    </message>
    <message>
        <source>); kind 0 takes the amount, any other the percent (19 means 19 %); keys not given keep their values.</source>
        <translation>) ; le type 0 prend le montant, tout autre le pourcentage (19 signifie 19 %) ; les clés non données gardent leur valeur.</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Sorry!</source>
        <translation>Désolé !</translation>
    </message>
    <message>
        <source>A quote is not cancelled by a credit note: nothing was charged. Change or delete the quote instead.</source>
        <translation>Un devis ne s’annule pas par un avoir : rien n’a été facturé. Modifiez ou supprimez plutôt le devis.</translation>
    </message>
    <message>
        <source>Only an invoice marked as sent or paid is cancelled by a credit note. An invoice still marked as created can be changed or deleted instead.</source>
        <translation>Seule une facture marquée envoyée ou payée s’annule par un avoir. Une facture encore marquée créée peut plutôt être modifiée ou supprimée.</translation>
    </message>
    <message>
        <source>Cancel Invoice</source>
        <translation>Annuler la facture</translation>
    </message>
    <message>
        <source>Create Credit Note</source>
        <translation>Créer un avoir</translation>
    </message>
    <message>
        <source>Cancels invoice %1 of %2</source>
        <translation>Annule la facture %1 du %2</translation>
    </message>
    <message>
        <source>You can&apos;t convert an invoice into a quote.</source>
        <translation>Une facture ne peut pas être convertie en devis.</translation>
    </message>
    <message>
        <source>Convert Into Invoice</source>
        <translation>Convertir en facture</translation>
    </message>
    <message>
        <source>Do you really want to convert the selected quote into an invoice? This will also change the title, the boilerplate text, the counter for your invoice numbering, and you can&apos;t undo this action.</source>
        <translation>Voulez-vous vraiment convertir le devis choisi en facture ? Cela modifie aussi le titre, les textes types et le compteur de vos numéros de facture, et vous ne pourrez pas l’annuler.</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Convertir</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Erreur !</translation>
    </message>
    <message>
        <source>The selected invoice is marked as already sent. If you really need to delete it, please set its status back to &apos;Created&apos; first.</source>
        <translation>La facture choisie est déjà marquée comme envoyée. Si vous devez vraiment la supprimer, remettez d’abord son statut à “Créée”.</translation>
    </message>
    <message>
        <source>Delete Invoice</source>
        <translation>Supprimer la facture</translation>
    </message>
    <message>
        <source>Deleting invoices is permanent and cannot be undone. Do you really want to delete the selected invoice?</source>
        <translation>La suppression d’une facture est définitive et ne peut pas être annulée. Voulez-vous vraiment supprimer la facture choisie ?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Delete Quote</source>
        <translation>Supprimer le devis</translation>
    </message>
    <message>
        <source>Deleting quotes is permanent and cannot be undone. Do you really want to delete the selected quote?</source>
        <translation>La suppression d’un devis est définitive et ne peut pas être annulée. Voulez-vous vraiment supprimer le devis choisi ?</translation>
    </message>
    <message>
        <source>

Adjust Counter: the next %1 will be numbered %2.
Cancel: the next %1 will be numbered %3.</source>
        <translation>

Ajuster le compteur : le prochain document (%1) portera le numéro %2.
Annuler : le prochain document (%1) portera le numéro %3.</translation>
    </message>
    <message>
        <source>Adjust Counter</source>
        <translation>Ajuster le compteur</translation>
    </message>
    <message>
        <source>Do you want Tabo to automatically adjust your invoice counter so that you won&apos;t use the same invoice number twice?</source>
        <translation>Voulez-vous que Tabo ajuste automatiquement votre compteur de factures pour ne jamais utiliser deux fois le même numéro ?</translation>
    </message>
    <message>
        <source>Do you want Tabo to automatically adjust your quote counter so that you won&apos;t use the same quote number twice?</source>
        <translation>Voulez-vous que Tabo ajuste automatiquement votre compteur de devis pour ne jamais utiliser deux fois le même numéro ?</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Facture</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Devis</translation>
    </message>
    <message>
        <source>A credit note with the same lines, negated, cancels this invoice; the invoice itself stays as it is.

</source>
        <translation>Un avoir avec les mêmes lignes, en négatif, annule cette facture ; la facture elle-même reste telle quelle.

</translation>
    </message>
</context>
<context>
    <name>DumpCommand</name>
    <message>
        <source>Write documents, catalogue, designs, addresses, shipping lines and templates to an invoices dump (a keyed archive; nothing reads it back).</source>
        <translation>Écrit documents, catalogue, designs, adresses, lignes d’expédition et modèles dans un vidage de factures (une archive à clés ; rien ne le relit).</translation>
    </message>
</context>
<context>
    <name>DuplicateCommand</name>
    <message>
        <source>Cancel a sent or paid invoice by a credit note (needs --yes): its lines negated, numbered as invoices are, naming the invoice. Prints the credit note&apos;s unique ID.</source>
        <translation>Annule une facture envoyée ou payée par un avoir (demande --yes) : ses lignes en négatif, numéroté comme les factures, citant la facture. Affiche l’identifiant unique de l’avoir.</translation>
    </message>
    <message>
        <source>Copy a document with its lines under a new number; prints the copy&apos;s unique ID. --to-the-cent calculates the copy to the cent per VAT rate, as e-invoices need.</source>
        <translation>Copie un document avec ses lignes sous un nouveau numéro ; affiche l’identifiant unique de la copie. --to-the-cent calcule la copie au centime près par taux de TVA, comme l’exigent les factures électroniques.</translation>
    </message>
</context>
<context>
    <name>EInvoice</name>
    <message>
        <source>tax %1</source>
        <translation>taxe %1</translation>
    </message>
    <message>
        <source>A quote is not an invoice: e-invoices are made of invoices.</source>
        <translation>Un devis n’est pas une facture : les factures électroniques sont faites de factures.</translation>
    </message>
    <message>
        <source>The invoice needs a due date or payment conditions (Dates and status, Texts)</source>
        <translation>La facture a besoin d’une échéance ou de conditions de paiement (Dates et statut, Textes)</translation>
    </message>
    <message>
        <source> (Preferences ▸ Company)</source>
        <translation> (Préférences ▸ Entreprise)</translation>
    </message>
    <message>
        <source> (Client ▸ Address ▸ E-invoice)</source>
        <translation> (Client ▸ Adresse ▸ Facture électronique)</translation>
    </message>
    <message>
        <source>The company&apos;s name is missing</source>
        <translation>Le nom de l’entreprise manque</translation>
    </message>
    <message>
        <source>The company&apos;s street is missing</source>
        <translation>La rue de l’entreprise manque</translation>
    </message>
    <message>
        <source>The company&apos;s postcode is missing</source>
        <translation>Le code postal de l’entreprise manque</translation>
    </message>
    <message>
        <source>The company&apos;s city is missing</source>
        <translation>La ville de l’entreprise manque</translation>
    </message>
    <message>
        <source>The company&apos;s country code (DE, FR …) is missing</source>
        <translation>Le code pays de l’entreprise (DE, FR …) manque</translation>
    </message>
    <message>
        <source>The company&apos;s VAT ID or tax number is missing</source>
        <translation>Le numéro de TVA ou fiscal de l’entreprise manque</translation>
    </message>
    <message>
        <source>The company&apos;s phone number is missing</source>
        <translation>Le numéro de téléphone de l’entreprise manque</translation>
    </message>
    <message>
        <source>The company&apos;s phone number needs at least three digits</source>
        <translation>Le numéro de téléphone de l’entreprise doit avoir au moins trois chiffres</translation>
    </message>
    <message>
        <source>The company&apos;s e-mail address is missing</source>
        <translation>L’adresse e-mail de l’entreprise manque</translation>
    </message>
    <message>
        <source>The company&apos;s IBAN is missing</source>
        <translation>L’IBAN de l’entreprise manque</translation>
    </message>
    <message>
        <source>The currency code (EUR, CHF …) is missing</source>
        <translation>Le code de devise (EUR, CHF …) manque</translation>
    </message>
    <message>
        <source>The client&apos;s name is missing</source>
        <translation>Le nom du client manque</translation>
    </message>
    <message>
        <source>The client&apos;s postcode is missing</source>
        <translation>Le code postal du client manque</translation>
    </message>
    <message>
        <source>The client&apos;s city is missing</source>
        <translation>La ville du client manque</translation>
    </message>
    <message>
        <source>The client&apos;s country code (DE, FR …) is missing</source>
        <translation>Le code pays du client (DE, FR …) manque</translation>
    </message>
    <message>
        <source>The client&apos;s e-invoice address or e-mail address is missing</source>
        <translation>L’adresse de facturation électronique ou l’e-mail du client manque</translation>
    </message>
    <message>
        <source>The invoice has no number (Invoice ▸ Number)</source>
        <translation>La facture n’a pas de numéro (Facture ▸ Numéro)</translation>
    </message>
    <message>
        <source>The invoice has no date (Dates and status)</source>
        <translation>La facture n’a pas de date (Dates et statut)</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Ligne %1</translation>
    </message>
    <message>
        <source>Line %1 “%2”</source>
        <translation>Ligne %1 “%2”</translation>
    </message>
    <message>
        <source>The invoice has no lines (Items)</source>
        <translation>La facture n’a pas de lignes (Articles)</translation>
    </message>
    <message>
        <source>The shipping carries the compound tax %1, which an e-invoice cannot state.</source>
        <translation>L’expédition porte la taxe composée %1, qu’une facture électronique ne peut pas indiquer.</translation>
    </message>
    <message>
        <source>The lines, each to the cent, add up to %1, but the invoice prints a net amount of %2: the classic calculation does not round each line.</source>
        <translation>Les lignes, chacune au centime, font %1, mais la facture imprime un montant HT de %2 : le calcul classique n’arrondit pas chaque ligne.</translation>
    </message>
    <message>
        <source>The invoice prints a total of %1, but its lines, shipping and taxes come to %2.</source>
        <translation>La facture imprime un total de %1, mais ses lignes, l’expédition et les taxes font %2.</translation>
    </message>
    <message>
        <source>The tax at %1 %: the invoice prints %2, but %3 × %1 % is %4. A rate changed after the lines were added causes this: recalculate the invoice.</source>
        <translation>La taxe à %1 % : la facture imprime %2, mais %3 × %1 % font %4. Un taux modifié après l’ajout des lignes en est la cause : recalculez la facture.</translation>
    </message>
    <message>
        <source>Supplies not subject to VAT cannot share an e-invoice with taxed ones.</source>
        <translation>Les prestations non soumises à la TVA ne peuvent pas partager une facture électronique avec des prestations taxées.</translation>
    </message>
    <message>
        <source>“%1” is not a VAT category (Preferences ▸ Taxes).</source>
        <translation>“%1” n’est pas une catégorie de TVA (Préférences ▸ Taxes).</translation>
    </message>
    <message>
        <source>A tax</source>
        <translation>Une taxe</translation>
    </message>
    <message>
        <source>The client&apos;s VAT ID is missing, which reverse charge and intra-community supplies need (Client ▸ Address)</source>
        <translation>Le numéro de TVA du client manque, alors que l’autoliquidation et les livraisons intracommunautaires en ont besoin (Client ▸ Adresse)</translation>
    </message>
    <message>
        <source>%1 carries %2 and %3; an e-invoice line carries one VAT rate.</source>
        <translation>%1 porte %2 et %3 ; une ligne de facture électronique porte un seul taux de TVA.</translation>
    </message>
    <message>
        <source>%1 carries the compound tax %2, which an e-invoice cannot state.</source>
        <translation>%1 porte la taxe composée %2, qu’une facture électronique ne peut pas indiquer.</translation>
    </message>
    <message>
        <source>The shipping carries %1 and %2; an e-invoice charge carries one VAT rate.</source>
        <translation>L’expédition porte %1 et %2 ; des frais de facture électronique portent un seul taux de TVA.</translation>
    </message>
    <message>
        <source>The discount: the classic calculation charges the tax at %1 % on the amount before the discount (%2), an e-invoice on the amount after it (%3 × %1 % = %4).</source>
        <translation>La remise : le calcul classique applique la taxe à %1 % sur le montant avant remise (%2), une facture électronique sur le montant après (%3 × %1 % = %4).</translation>
    </message>
    <message>
        <source>%1 is marked as “%2” in the preferences but charges %3.</source>
        <translation>%1 est marqué “%2” dans les préférences mais facture %3.</translation>
    </message>
    <message>
        <source>%1 is “%2”, which needs a reason why VAT is not charged (Preferences ▸ Taxes)</source>
        <translation>%1 est “%2”, ce qui demande un motif d’absence de TVA (Préférences ▸ Taxes)</translation>
    </message>
    <message>
        <source>The invoice prints a total of %1; stated the standard&apos;s way it comes to %2.</source>
        <translation>La facture imprime un total de %1 ; calculé selon la norme, il vaut %2.</translation>
    </message>
</context>
<context>
    <name>EInvoiceCommand</name>
    <message>
        <source>Write the page as PDF.</source>
        <translation>Écrire la page en PDF.</translation>
    </message>
    <message>
        <source>Write the page as HTML.</source>
        <translation>Écrire la page en HTML.</translation>
    </message>
    <message>
        <source>Say where: --pdf OUT or --html OUT.</source>
        <translation>Indiquez où : --pdf SORTIE ou --html SORTIE.</translation>
    </message>
    <message>
        <source>credit note</source>
        <translation>avoir</translation>
    </message>
    <message>
        <source>, from a PDF</source>
        <translation>, d’un PDF</translation>
    </message>
    <message>
        <source>Its totals do not add up.</source>
        <translation>Ses totaux ne concordent pas.</translation>
    </message>
    <message>
        <source>its totals add up: %1 %2 due
</source>
        <translation>les totaux concordent : %1 %2 dus
</translation>
    </message>
    <message>
        <source>The page could not be written to “%1”.</source>
        <translation>La page n’a pas pu être écrite dans “%1”.</translation>
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
        <translation>Design du PDF.</translation>
    </message>
    <message>
        <source>Missing export, missing, view or check.</source>
        <translation>export, missing, view ou check manquant.</translation>
    </message>
    <message>
        <source>Unknown “%1”: export, missing, view or check.</source>
        <translation>Inconnu “%1” : export, missing, view ou check.</translation>
    </message>
    <message>
        <source>The e-invoice cannot be written yet (%1 above).</source>
        <translation>La facture électronique ne peut pas encore être écrite (%1 ci-dessus).</translation>
    </message>
    <message>
        <source>The e-invoice cannot be written yet: </source>
        <translation>La facture électronique ne peut pas encore être écrite : </translation>
    </message>
    <message>
        <source>Write an invoice as XRechnung (CII or UBL) or as a Factur-X / ZUGFeRD PDF, or list what it still needs for one (each in words, with where to fill it); nothing is written while something is missing. view and check read a received e-invoice (XML, or a PDF carrying one): a readable page of it, or whether it is well-formed and its totals add up. A received invoice is never stored.</source>
        <translation>Écrit une facture en XRechnung (CII ou UBL) ou en PDF Factur-X / ZUGFeRD, ou liste ce qui manque encore (en mots, avec où le remplir) ; rien n’est écrit tant qu’il manque quelque chose. view et check lisent une facture électronique reçue (XML, ou PDF qui en porte une) : une page lisible, ou si elle est bien formée et ses totaux concordent. Une facture reçue n’est jamais enregistrée.</translation>
    </message>
    <message>
        <source>Say which and where: --xrechnung-cii FILE, --xrechnung-ubl FILE or --facturx FILE.pdf.</source>
        <translation>Indiquez quoi et où : --xrechnung-cii FICHIER, --xrechnung-ubl FICHIER ou --facturx FICHIER.pdf.</translation>
    </message>
    <message>
        <source> tabo-cli duplicate %1 --to-the-cent makes a copy calculated to the cent; tabo-cli prefs set centExactTotals true does so for new invoices.</source>
        <translation> tabo-cli duplicate %1 --to-the-cent crée une copie calculée au centime près ; tabo-cli prefs set centExactTotals true le fait pour les nouvelles factures.</translation>
    </message>
</context>
<context>
    <name>EInvoiceCommands</name>
    <message>
        <source>Make a copy calculated to the cent, whose e-invoice states exactly what it prints, or switch the setting for new invoices (Preferences ▸ Taxes ▸ Calculate new documents to the cent).</source>
        <translation>Créez une copie calculée au centime près, dont la facture électronique indique exactement ce qu’elle imprime, ou changez le réglage des nouvelles factures (Préférences ▸ Taxes ▸ Calculer les nouveaux documents au centime près).</translation>
    </message>
    <message>
        <source>The e-invoice cannot be written yet</source>
        <translation>La facture électronique ne peut pas encore être écrite</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Make a copy calculated to the cent</source>
        <translation>Créer une copie calculée au centime près</translation>
    </message>
    <message>
        <source>Open E-Invoice</source>
        <translation>Ouvrir une facture électronique</translation>
    </message>
    <message>
        <source>The e-invoice cannot be shown</source>
        <translation>La facture électronique ne peut pas être affichée</translation>
    </message>
    <message>
        <source>Its page could not be made.</source>
        <translation>Sa page n’a pas pu être créée.</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>PDF with e-invoice (Factur-X / ZUGFeRD)</source>
        <translation>PDF avec facture électronique (Factur-X / ZUGFeRD)</translation>
    </message>
    <message>
        <source>E-invoice (XRechnung)</source>
        <translation>Facture électronique (XRechnung)</translation>
    </message>
    <message>
        <source>The printed invoice “%1” cannot be read.</source>
        <translation>La facture imprimée “%1” ne peut pas être lue.</translation>
    </message>
</context>
<context>
    <name>EmailCommand</name>
    <message>
        <source>What to attach.</source>
        <translation>Ce qui est joint.</translation>
    </message>
    <message>
        <source>Open a new message in the mail program with the document as a PDF attachment; an invoice is then marked as sent when markInvoiceAsSent is on. --form attaches an invoice as PDF with its e-invoice (Factur-X / ZUGFeRD) or as e-invoice alone (XRechnung) instead; without it, the einvoiceForm preference decides.</source>
        <translation>Ouvre un nouveau message dans le programme de messagerie avec le document en PDF joint ; une facture est alors marquée envoyée si markInvoiceAsSent est actif. --form joint plutôt une facture en PDF avec sa facture électronique (Factur-X / ZUGFeRD) ou en facture électronique seule (XRechnung) ; sans elle, la préférence einvoiceForm décide.</translation>
    </message>
    <message>
        <source>--form takes pdf, facturx or xrechnung.</source>
        <translation>--form accepte pdf, facturx ou xrechnung.</translation>
    </message>
</context>
<context>
    <name>ExportCommand</name>
    <message>
        <source>Write a document as a Tabo document (the form import reads) or as an XML property list.</source>
        <translation>Écrit un document en document Tabo (la forme que lit l’import) ou en liste de propriétés XML.</translation>
    </message>
    <message>
        <source>Tabo document to write.</source>
        <translation>Document Tabo à écrire.</translation>
    </message>
    <message>
        <source>XML file to write.</source>
        <translation>Fichier XML à écrire.</translation>
    </message>
    <message>
        <source>Give one of --tabo and --xml.</source>
        <translation>Donnez l’une des options --tabo et --xml.</translation>
    </message>
</context>
<context>
    <name>ExportXmlCommand</name>
    <message>
        <source>Write every document, or those the list shows under a filter tag (as in list), to an XML property list.</source>
        <translation>Écrit chaque document, ou ceux que la liste affiche sous une étiquette de filtre (comme list), dans une liste de propriétés XML.</translation>
    </message>
</context>
<context>
    <name>FacturX</name>
    <message>
        <source>The printed invoice could not be made a Factur-X PDF: %1</source>
        <translation>La facture imprimée n’a pas pu devenir un PDF Factur-X : %1</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Export Tabo Database As XML</source>
        <translation>Exporter la base de données Tabo en XML</translation>
    </message>
    <message>
        <source>The archive could not be built: %1</source>
        <translation>L’archive n’a pas pu être construite : %1</translation>
    </message>
    <message>
        <source>There is no database.</source>
        <translation>Il n’y a pas de base de données.</translation>
    </message>
    <message>
        <source>Export As Tabo Document</source>
        <translation>Exporter en document Tabo</translation>
    </message>
    <message>
        <source>Export As XML Document</source>
        <translation>Exporter en document XML</translation>
    </message>
    <message>
        <source>Unknown export format %1.</source>
        <translation>Format d’export inconnu %1.</translation>
    </message>
    <message>
        <source>Tabo Database</source>
        <translation>Base de données Tabo</translation>
    </message>
    <message>
        <source>Export As Invoices Dump</source>
        <translation>Exporter en vidage de factures</translation>
    </message>
    <message>
        <source>Invoices Dump</source>
        <translation>Vidage des factures</translation>
    </message>
    <message>
        <source>Warning!</source>
        <translation>Attention !</translation>
    </message>
    <message>
        <source>The integrity of your data is your responsibility, and yours alone. Tabo is just a stupid App and by design it can&apos;t know or care about duplicate invoices, messed up numbers, or if you&apos;re having a bad hair day. So please, do yourself a favor and check what you are doing here. Do you still want to import the invoice?</source>
        <translation>L’intégrité de vos données relève de votre responsabilité, et de la vôtre seule. Tabo n’est qu’une app stupide et ne peut, par conception, rien savoir des factures en double, des numéros embrouillés ou de vos mauvais jours. Alors rendez-vous service et vérifiez ce que vous faites. Voulez-vous toujours importer la facture ?</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Import Tabo Document</source>
        <translation>Importer un document Tabo</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Erreur !</translation>
    </message>
    <message>
        <source>The file “%1” is not a Tabo document.</source>
        <translation>Le fichier “%1” n’est pas un document Tabo.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The file “%1” could not be read: %2</source>
        <translation>Le fichier “%1” n’a pas pu être lu : %2</translation>
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
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>ImportCommand</name>
    <message>
        <source>No file “%1”.</source>
        <translation>Aucun fichier “%1”.</translation>
    </message>
    <message>
        <source>Nothing was imported from “%1”.</source>
        <translation>Rien n’a été importé de “%1”.</translation>
    </message>
    <message>
        <source>Add the document of a Tabo document file; the application warns first, so it needs --yes. Prints the new document&apos;s unique ID.</source>
        <translation>Ajoute le document d’un fichier de document Tabo ; l’application avertit d’abord, il faut donc --yes. Affiche l’identifiant unique du nouveau document.</translation>
    </message>
</context>
<context>
    <name>ItemCommands</name>
    <message>
        <source>The selected invoice is marked as already sent. If you really need to make changes, please set its status back to &apos;Created&apos; first. Then you will also be able to resend the modified invoice.</source>
        <translation>La facture choisie est déjà marquée comme envoyée. Si vous devez vraiment la modifier, remettez d’abord son statut à “Créée”. Vous pourrez ensuite renvoyer la facture modifiée.</translation>
    </message>
    <message>
        <source>The %1 “%2” is not a number.</source>
        <translation>%1 “%2” n’est pas un nombre.</translation>
    </message>
    <message>
        <source>rate of the first tax</source>
        <translation>taux de la première taxe</translation>
    </message>
    <message>
        <source>rate of the second tax</source>
        <translation>taux de la deuxième taxe</translation>
    </message>
    <message>
        <source>rate of the third tax</source>
        <translation>taux de la troisième taxe</translation>
    </message>
    <message>
        <source>net amount</source>
        <translation>montant HT</translation>
    </message>
    <message>
        <source>The catalogue entry is no longer there.</source>
        <translation>L’entrée du catalogue n’existe plus.</translation>
    </message>
    <message>
        <source>A catalogue entry has no field “%1” to change.</source>
        <translation>Une entrée du catalogue n’a pas de champ “%1” à modifier.</translation>
    </message>
    <message>
        <source>The price is not a number.</source>
        <translation>Le prix n’est pas un nombre.</translation>
    </message>
    <message>
        <source>Delete from Catalogue</source>
        <translation>Supprimer du catalogue</translation>
    </message>
    <message>
        <source>Delete %1 from the catalogue? Lines already written with %2 stay as they are.</source>
        <translation>Supprimer %1 du catalogue ? Les lignes déjà écrites avec %2 restent telles quelles.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>There is no document to add the line to.</source>
        <translation>Il n’y a pas de document auquel ajouter la ligne.</translation>
    </message>
    <message>
        <source>Add Line</source>
        <translation>Ajouter une ligne</translation>
    </message>
    <message>
        <source>Delete Line</source>
        <translation>Supprimer la ligne</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Erreur !</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Delete Item</source>
        <translation>Supprimer l’article</translation>
    </message>
    <message>
        <source>Deleting items is permanent and cannot be undone. Do you really want to delete the selected item?</source>
        <translation>La suppression d’un article est définitive et ne peut pas être annulée. Voulez-vous vraiment supprimer l’article choisi ?</translation>
    </message>
    <message>
        <source>There is no line to change.</source>
        <translation>Il n’y a pas de ligne à modifier.</translation>
    </message>
    <message>
        <source>A line has no field “%1”.</source>
        <translation>Une ligne n’a pas de champ “%1”.</translation>
    </message>
    <message>
        <source>Edit Line</source>
        <translation>Modifier la ligne</translation>
    </message>
    <message>
        <source>The value “%1” does not fit the field “%2”.</source>
        <translation>La valeur “%1” ne convient pas au champ “%2”.</translation>
    </message>
    <message>
        <source>There is no document to add the shipping to.</source>
        <translation>Il n’y a pas de document auquel ajouter l’expédition.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Expédition</translation>
    </message>
    <message>
        <source>shipping amount</source>
        <translation>montant de l’expédition</translation>
    </message>
    <message>
        <source>There is no document to add the discount to.</source>
        <translation>Il n’y a pas de document auquel ajouter la remise.</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Remise</translation>
    </message>
    <message>
        <source>discount amount</source>
        <translation>montant de la remise</translation>
    </message>
    <message>
        <source>discount percentage</source>
        <translation>pourcentage de remise</translation>
    </message>
    <message>
        <source>The %1 “%2” is too large; it can be at most about 3.4e38.</source>
        <translation>%1 “%2” est trop grand ; il vaut au plus environ 3,4e38.</translation>
    </message>
    <message>
        <source>The %1 is empty; please enter a number.</source>
        <translation>%1 est vide ; veuillez saisir un nombre.</translation>
    </message>
</context>
<context>
    <name>KeyedArchive</name>
    <message>
        <source>nested deeper than %1 levels</source>
        <translation>imbriqué sur plus de %1 niveaux</translation>
    </message>
    <message>
        <source>cannot archive a value of type %1</source>
        <translation>impossible d’archiver une valeur de type %1</translation>
    </message>
    <message>
        <source>invalid date</source>
        <translation>date non valide</translation>
    </message>
    <message>
        <source>object without a class</source>
        <translation>objet sans classe</translation>
    </message>
    <message>
        <source>damaged class entry</source>
        <translation>entrée de classe endommagée</translation>
    </message>
    <message>
        <source>expected an object reference</source>
        <translation>référence d’objet attendue</translation>
    </message>
    <message>
        <source>reference to a missing object</source>
        <translation>référence à un objet manquant</translation>
    </message>
    <message>
        <source>cyclic object reference</source>
        <translation>référence d’objet cyclique</translation>
    </message>
    <message>
        <source>malformed object</source>
        <translation>objet mal formé</translation>
    </message>
    <message>
        <source>dictionary with unequal keys and values</source>
        <translation>dictionnaire avec autant de clés que de valeurs manquant</translation>
    </message>
    <message>
        <source>too many values</source>
        <translation>trop de valeurs</translation>
    </message>
    <message>
        <source>damaged string</source>
        <translation>chaîne endommagée</translation>
    </message>
    <message>
        <source>damaged date</source>
        <translation>date endommagée</translation>
    </message>
    <message>
        <source>damaged data</source>
        <translation>données endommagées</translation>
    </message>
    <message>
        <source>not a keyed archive</source>
        <translation>pas une archive à clés</translation>
    </message>
    <message>
        <source>the archive&apos;s root is empty or of an unknown class</source>
        <translation>la racine de l’archive est vide ou d’une classe inconnue</translation>
    </message>
</context>
<context>
    <name>ListCommand</name>
    <message>
        <source>List the documents shown by a filter (0 all, 1 sent, 2 overdue or partly paid, 3 paid, 4 quotes, 5-8 the last 12 hours, 3.5, 15.5, 182.5 days) and the summary.</source>
        <translation>Liste les documents d’un filtre (0 tous, 1 envoyés, 2 en retard ou partiellement payés, 3 payés, 4 devis, 5-8 les dernières 12 heures, 3,5, 15,5, 182,5 jours) et le résumé.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>Afficher en JSON.</translation>
    </message>
</context>
<context>
    <name>MailHandoff</name>
    <message>
        <source>No e-mail program is set up on this computer.</source>
        <translation>Aucun programme de messagerie n’est configuré sur cet ordinateur.</translation>
    </message>
    <message>
        <source>The PDF to attach could not be found.</source>
        <translation>Le PDF à joindre est introuvable.</translation>
    </message>
    <message>
        <source>The e-mail program did not accept the new message.</source>
        <translation>Le programme de messagerie n’a pas accepté le nouveau message.</translation>
    </message>
    <message>
        <source>The e-mail program could not be asked to write the message.</source>
        <translation>Le programme de messagerie n’a pas pu être sollicité pour écrire le message.</translation>
    </message>
</context>
<context>
    <name>Matching</name>
    <message>
        <source>%1 more than is due.</source>
        <translation>%1 de plus que le dû.</translation>
    </message>
    <message>
        <source>Partly paid: %1 of %2.</source>
        <translation>Partiellement payée : %1 sur %2.</translation>
    </message>
    <message>
        <source>Taken in from an earlier statement.</source>
        <translation>Pris en compte depuis un relevé précédent.</translation>
    </message>
    <message>
        <source>The text names invoice %1 and the amount is what it owes.</source>
        <translation>Le texte nomme la facture %1 et le montant est ce qu’elle doit.</translation>
    </message>
    <message>
        <source>The text names invoice %1.</source>
        <translation>Le texte nomme la facture %1.</translation>
    </message>
    <message>
        <source>The text names %1 open invoices.</source>
        <translation>Le texte nomme %1 factures ouvertes.</translation>
    </message>
    <message>
        <source>The only open invoice of exactly this amount.</source>
        <translation>La seule facture ouverte de ce montant exact.</translation>
    </message>
    <message>
        <source>This amount, from this client.</source>
        <translation>Ce montant, de ce client.</translation>
    </message>
    <message>
        <source>%1 open invoices owe exactly this amount.</source>
        <translation>%1 factures ouvertes doivent exactement ce montant.</translation>
    </message>
    <message>
        <source>The only open invoice of this client.</source>
        <translation>La seule facture ouverte de ce client.</translation>
    </message>
    <message>
        <source>This client has %1 open invoices, none of this amount.</source>
        <translation>Ce client a %1 factures ouvertes, aucune de ce montant.</translation>
    </message>
    <message>
        <source>No open invoice fits.</source>
        <translation>Aucune facture ouverte ne correspond.</translation>
    </message>
</context>
<context>
    <name>NewCommand</name>
    <message>
        <source>Create a document and print its unique ID.</source>
        <translation>Crée un document et affiche son identifiant unique.</translation>
    </message>
    <message>
        <source>Unknown document kind “%1”.</source>
        <translation>Type de document inconnu “%1”.</translation>
    </message>
</context>
<context>
    <name>NotificationCommands</name>
    <message>
        <source>Notification Already Created</source>
        <translation>Notification déjà créée</translation>
    </message>
    <message>
        <source>You&apos;ve already created a notification for this invoice. Do you really want to create another one?</source>
        <translation>Vous avez déjà créé une notification pour cette facture. Voulez-vous vraiment en créer une autre ?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>There is no invoice to remind of.</source>
        <translation>Il n’y a pas de facture à rappeler.</translation>
    </message>
    <message>
        <source>There is no notification %1.</source>
        <translation>Il n’y a pas de notification %1.</translation>
    </message>
    <message>
        <source>The notifications stay scheduled.</source>
        <translation>Les notifications restent planifiées.</translation>
    </message>
    <message>
        <source>The notification service did not show %1 of the reminders.</source>
        <translation>Le service de notification n’a pas affiché %1 des rappels.</translation>
    </message>
    <message>
        <source>They stay scheduled.</source>
        <translation>Ils restent planifiés.</translation>
    </message>
    <message>
        <source>Reminders While Tabo Is Closed</source>
        <translation>Rappels pendant que Tabo est fermé</translation>
    </message>
    <message>
        <source>Tabo shows this reminder when its moment comes while Tabo is open. Shall a small timer of your desktop session look for due reminders every hour, so that they also arrive while Tabo is closed? You can remove it at any time in Preferences ▸ Data.</source>
        <translation>Tabo affiche ce rappel à son heure si Tabo est ouvert. Un petit minuteur de votre session de bureau doit-il chercher les rappels échus toutes les heures, pour qu’ils arrivent aussi quand Tabo est fermé ? Vous pouvez le retirer à tout moment dans Préférences ▸ Données.</translation>
    </message>
    <message>
        <source>Install Timer</source>
        <translation>Installer le minuteur</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Pas maintenant</translation>
    </message>
</context>
<context>
    <name>NotificationSchedule</name>
    <message>
        <source>The notification could not be saved.</source>
        <translation>La notification n’a pas pu être enregistrée.</translation>
    </message>
    <message>
        <source>It has no date.</source>
        <translation>Il n’a pas de date.</translation>
    </message>
</context>
<context>
    <name>Notifier</name>
    <message>
        <source>Notifications cannot be shown: there is no desktop session bus (D-Bus) here.</source>
        <translation>Les notifications ne peuvent pas être affichées : il n’y a pas de bus de session (D-Bus) ici.</translation>
    </message>
    <message>
        <source>Notifications cannot be shown: no notification service runs on this desktop.</source>
        <translation>Les notifications ne peuvent pas être affichées : aucun service de notification ne tourne sur ce bureau.</translation>
    </message>
    <message>
        <source>Show Invoice</source>
        <translation>Afficher la facture</translation>
    </message>
</context>
<context>
    <name>NotifyCommand</name>
    <message>
        <source>“%1” is not an ISO 8601 date or moment (2026-12-03 or 2026-12-03T09:00).</source>
        <translation>“%1” n’est pas une date ou un instant ISO 8601 (2026-12-03 ou 2026-12-03T09:00).</translation>
    </message>
    <message>
        <source>Schedule a reminder of a document: by default three days after it is due, titled with its title and number, with the address&apos;s first line as subtitle. A second reminder of the same document needs --yes. Prints the reminder&apos;s number.</source>
        <translation>Planifie un rappel d’un document : par défaut trois jours après l’échéance, intitulé de son titre et de son numéro, avec la première ligne de l’adresse en sous-titre. Un second rappel du même document demande --yes. Affiche le numéro du rappel.</translation>
    </message>
    <message>
        <source>When to show it.</source>
        <translation>Quand l’afficher.</translation>
    </message>
    <message>
        <source>Title.</source>
        <translation>Titre.</translation>
    </message>
    <message>
        <source>Subtitle.</source>
        <translation>Sous-titre.</translation>
    </message>
    <message>
        <source>Informative text.</source>
        <translation>Texte informatif.</translation>
    </message>
    <message>
        <source> The reminder is kept and shown by the first Tabo that can.</source>
        <translation> Le rappel est conservé et affiché par le premier Tabo qui le peut.</translation>
    </message>
    <message>
        <source>The scheduled reminders: list them, cancel one by its number, or show those whose moment has come (what the reminder timer runs every hour). With --wait the run stays up to SECONDS after showing something, so that a click opens Tabo on the invoice.</source>
        <translation>Les rappels planifiés : les lister, en annuler un par son numéro, ou afficher ceux dont l’heure est venue (ce que le minuteur lance toutes les heures). Avec --wait, l’exécution reste jusqu’à SECONDES après un affichage, pour qu’un clic ouvre Tabo sur la facture.</translation>
    </message>
    <message>
        <source>Missing list, cancel or deliver-due.</source>
        <translation>list, cancel ou deliver-due manquant.</translation>
    </message>
    <message>
        <source>Unknown “%1”: list, cancel or deliver-due.</source>
        <translation>Inconnu “%1” : list, cancel ou deliver-due.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>Afficher en JSON.</translation>
    </message>
    <message>
        <source>“%1” is not a reminder&apos;s number (see “notifications list”).</source>
        <translation>“%1” n’est pas un numéro de rappel (voir “notifications list”).</translation>
    </message>
    <message>
        <source>Stay for clicks.</source>
        <translation>Rester ouvert pour les clics.</translation>
    </message>
    <message>
        <source>1 reminder shown.
</source>
        <translation>1 rappel affiché.
</translation>
    </message>
    <message>
        <source>--wait takes a number of seconds.</source>
        <translation>--wait accepte un nombre de secondes.</translation>
    </message>
    <message>
        <source>Repeated invoices written: %1.</source>
        <translation>Factures récurrentes établies : %1.</translation>
    </message>
</context>
<context>
    <name>NumberCounters</name>
    <message>
        <source>The counter “%1” could not be stored: %2</source>
        <translation>Le compteur “%1” n’a pas pu être enregistré : %2</translation>
    </message>
</context>
<context>
    <name>Numbering</name>
    <message>
        <source>The pattern needs %COUNT%, or every document gets the same number.</source>
        <translation>Le modèle a besoin de %COUNT%, sinon tous les documents reçoivent le même numéro.</translation>
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
        <translation>Le fichier PDF “%1” n’a pas pu être lu.</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Erreur !</translation>
    </message>
    <message>
        <source>No design available. Please download or create a design.</source>
        <translation>Aucun design disponible. Veuillez télécharger ou créer un design.</translation>
    </message>
    <message>
        <source>Print Invoice</source>
        <translation>Imprimer la facture</translation>
    </message>
    <message>
        <source>Export Invoice As PDF File</source>
        <translation>Exporter la facture en fichier PDF</translation>
    </message>
    <message>
        <source>Send Invoice As Email Attachment</source>
        <translation>Envoyer la facture en pièce jointe</translation>
    </message>
    <message>
        <source>Export Invoice As Document</source>
        <translation>Exporter la facture en document</translation>
    </message>
    <message>
        <source>Export As PDF File</source>
        <translation>Exporter en fichier PDF</translation>
    </message>
    <message>
        <source>Export As E-Invoice (XRechnung)</source>
        <translation>Exporter en facture électronique (XRechnung)</translation>
    </message>
    <message>
        <source>Export As PDF With E-Invoice</source>
        <translation>Exporter en PDF avec facture électronique</translation>
    </message>
    <message>
        <source>The E-Mail Could Not Be Written</source>
        <translation>L’e-mail n’a pas pu être écrit</translation>
    </message>
    <message>
        <source>

You can save the PDF and attach it to a message yourself, or open the folder that holds it.</source>
        <translation>

Vous pouvez enregistrer le PDF et le joindre vous-même à un message, ou ouvrir le dossier qui le contient.</translation>
    </message>
    <message>
        <source>Save PDF…</source>
        <translation>Enregistrer le PDF…</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Mark as Sent</source>
        <translation>Marquer comme envoyée</translation>
    </message>
    <message>
        <source>The design “%1” laid the document out on %2 pages, far more than its lines can fill, so no PDF was made. Choose another design or fix this one in Preferences ▸ Designs.</source>
        <translation>Le design “%1” a mis le document en page sur %2 pages, bien plus que ses lignes ne peuvent remplir ; aucun PDF n’a donc été créé. Choisissez un autre design ou réparez celui-ci dans Préférences ▸ Designs.</translation>
    </message>
    <message>
        <source>Ooops!</source>
        <translation>Oups !</translation>
    </message>
    <message>
        <source>Something went really wrong while creating the design preview.</source>
        <translation>Quelque chose s’est vraiment mal passé lors de la création de l’aperçu du design.</translation>
    </message>
    <message>
        <source>Something went really wrong while creating the preview.</source>
        <translation>Quelque chose s’est vraiment mal passé lors de la création de l’aperçu.</translation>
    </message>
</context>
<context>
    <name>OutputRun</name>
    <message>
        <source>No design titled “%1”.</source>
        <translation>Aucun design intitulé “%1”.</translation>
    </message>
    <message>
        <source>%1 designs are titled “%2”; give its unique ID instead: %3.</source>
        <translation>%1 designs s’intitulent “%2” ; donnez plutôt son identifiant unique : %3.</translation>
    </message>
    <message>
        <source>“%1” is the ID of %2 designs; give its title instead.</source>
        <translation>“%1” est l’identifiant de %2 designs ; donnez plutôt son titre.</translation>
    </message>
</context>
<context>
    <name>PaymentCommands</name>
    <message>
        <source>No database is open.</source>
        <translation>Aucune base de données n’est ouverte.</translation>
    </message>
    <message>
        <source>Import Bank Statement</source>
        <translation>Importer un relevé bancaire</translation>
    </message>
    <message>
        <source>Payments</source>
        <translation>Paiements</translation>
    </message>
</context>
<context>
    <name>PaymentLedger</name>
    <message>
        <source>The payments taken in could not be read or written: %1</source>
        <translation>Les paiements pris en compte n’ont pas pu être lus ou écrits : %1</translation>
    </message>
</context>
<context>
    <name>PaymentsCommand</name>
    <message>
        <source>Print JSON.</source>
        <translation>Afficher en JSON.</translation>
    </message>
    <message>
        <source>Take in the sure matches.</source>
        <translation>Prendre en compte les rapprochements sûrs.</translation>
    </message>
    <message>
        <source>Unknown “%1”: import.</source>
        <translation>Inconnu “%1” : import.</translation>
    </message>
    <message>
        <source>Payments taken in: %1.</source>
        <translation>Paiements pris en compte : %1.</translation>
    </message>
    <message>
        <source>Read a bank statement (CAMT.053, CAMT.054, MT940 or CSV) and match its credits against the open invoices: sure (the text names the invoice and the amount is what it owes), proposed, ambiguous, none, or imported before. --apply takes in the sure matches: the invoice is paid or partly paid. A booking is never taken in twice. --columns names the columns of a CSV export whose headings are not recognised (date, amount or credit and debit, currency, payer, iban, text, reference; by number or heading); they are remembered for files laid out like it.</source>
        <translation>Lire un relevé bancaire (CAMT.053, CAMT.054, MT940 ou CSV) et rapprocher ses crédits des factures ouvertes : sûr (le texte nomme la facture et le montant est ce qu’elle doit), proposé, ambigu, aucun, ou déjà importé. --apply prend en compte les rapprochements sûrs : la facture est payée ou payée en partie. Une écriture n’est jamais prise en compte deux fois. --columns nomme les colonnes d’un export CSV dont les en-têtes ne sont pas reconnus (date, amount ou credit et debit, currency, payer, iban, text, reference ; par numéro ou en-tête) ; elles sont retenues pour les fichiers de même présentation.</translation>
    </message>
    <message>
        <source>The columns of a CSV statement.</source>
        <translation>Les colonnes d’un relevé CSV.</translation>
    </message>
</context>
<context>
    <name>PrefRules</name>
    <message>
        <source>The counter</source>
        <translation>Le compteur</translation>
    </message>
    <message>
        <source>The number of days</source>
        <translation>Le nombre de jours</translation>
    </message>
    <message>
        <source>The rate cannot be below 0 %.</source>
        <translation>Le taux ne peut pas être inférieur à 0 %.</translation>
    </message>
    <message>
        <source>The rate cannot be above 1000 % (rates are fractions: 0.19 is 19 %).</source>
        <translation>Le taux ne peut pas dépasser 1000 % (les taux sont des fractions : 0,19 vaut 19 %).</translation>
    </message>
    <message>
        <source>The folder “%1” does not exist.</source>
        <translation>Le dossier “%1” n’existe pas.</translation>
    </message>
    <message>
        <source>%1 cannot be below 0.</source>
        <translation>%1 ne peut pas être inférieur à 0.</translation>
    </message>
    <message>
        <source>%1 cannot be above %2.</source>
        <translation>%1 ne peut pas dépasser %2.</translation>
    </message>
    <message>
        <source>“%1” is no region; use a name such as de_DE or fr_FR.</source>
        <translation>“%1” n’est pas une région ; utilisez un nom comme de_DE ou fr_FR.</translation>
    </message>
    <message>
        <source>“%1” is not an absolute path; name the folder from the root (/…).</source>
        <translation>“%1” n’est pas un chemin absolu ; indiquez le dossier depuis la racine (/…).</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>It cannot be read (%1).</source>
        <translation>Il ne peut pas être lu (%1).</translation>
    </message>
    <message>
        <source>It holds binary data.</source>
        <translation>Il contient des données binaires.</translation>
    </message>
    <message>
        <source>It is not text.</source>
        <translation>Ce n’est pas du texte.</translation>
    </message>
    <message>
        <source>Line %1 is neither a section nor a setting.</source>
        <translation>La ligne %1 n’est ni une section ni un réglage.</translation>
    </message>
    <message>
        <source>The settings file “%1” is damaged. %2 Tabo has left it as it is.%3</source>
        <translation>Le fichier de réglages “%1” est endommagé. %2 Tabo l’a laissé tel quel.%3</translation>
    </message>
    <message>
        <source>The settings file “%1” cannot be read. Tabo has left it as it is.</source>
        <translation>Le fichier de réglages “%1” ne peut pas être lu. Tabo l’a laissé tel quel.</translation>
    </message>
    <message>
        <source>There are no kept settings (“%1”) to restore.</source>
        <translation>Il n’y a pas de réglages conservés (“%1”) à restaurer.</translation>
    </message>
    <message>
        <source>The kept settings “%1” are damaged too: %2</source>
        <translation>Les réglages conservés “%1” sont aussi endommagés : %2</translation>
    </message>
    <message>
        <source>unknown preference key “%1”</source>
        <translation>clé de préférence inconnue “%1”</translation>
    </message>
    <message>
        <source>“%1” is not a valid %2 for %3</source>
        <translation>“%1” n’est pas une valeur valide de %2 pour %3</translation>
    </message>
    <message>
        <source>readable file</source>
        <translation>fichier lisible</translation>
    </message>
    <message>
        <source>The settings file is locked by another program (process %1) that has held it for more than %2 seconds. Quit that program (or end process %1) and try again; nothing was changed.</source>
        <translation>Le fichier de réglages est verrouillé par un autre programme (processus %1) qui le tient depuis plus de %2 secondes. Quittez ce programme (ou terminez le processus %1) et réessayez ; rien n’a été modifié.</translation>
    </message>
    <message>
        <source>The settings file “%1” is not a file (a folder or something else stands in its place). Tabo has left it as it is; move it away and start again.</source>
        <translation>Le fichier de réglages “%1” n’est pas un fichier (un dossier ou autre chose est à sa place). Tabo l’a laissé tel quel ; déplacez-le et recommencez.</translation>
    </message>
    <message>
        <source> The last good settings are kept in “%1”; restore them with tabo-cli prefs restore.</source>
        <translation> Les derniers bons réglages sont conservés dans “%1” ; restaurez-les avec tabo-cli prefs restore.</translation>
    </message>
    <message>
        <source>“%1” could not be moved aside; nothing was restored.</source>
        <translation>“%1” n’a pas pu être mis de côté ; rien n’a été restauré.</translation>
    </message>
    <message>
        <source>“%1” could not be written; nothing was restored.</source>
        <translation>“%1” n’a pas pu être écrit ; rien n’a été restauré.</translation>
    </message>
    <message>
        <source>The settings file “%1” could not be written (the disk may be full or the file read-only); the change was not stored.</source>
        <translation>Le fichier de réglages “%1” n’a pas pu être écrit (disque plein ou fichier en lecture seule ?) ; la modification n’a pas été enregistrée.</translation>
    </message>
</context>
<context>
    <name>PrefsCommand</name>
    <message>
        <source>Print JSON.</source>
        <translation>Afficher en JSON.</translation>
    </message>
    <message>
        <source>Restored the last good settings from “%1”.</source>
        <translation>Les derniers bons réglages ont été restaurés depuis “%1”.</translation>
    </message>
    <message>
        <source>Unknown preference key “%1”.</source>
        <translation>Clé de préférence inconnue “%1”.</translation>
    </message>
    <message>
        <source>Name the folder first: tabo-cli prefs set customDatabasePath FOLDER.</source>
        <translation>Indiquez d’abord le dossier : tabo-cli prefs set customDatabasePath DOSSIER.</translation>
    </message>
    <message>
        <source>“%1” is not a number.</source>
        <translation>“%1” n’est pas un nombre.</translation>
    </message>
    <message>
        <source>New documents are calculated to the cent. %1 (tabo-cli prefs set centExactTotals false keeps the classic calculation.)</source>
        <translation>Les nouveaux documents sont calculés au centime près. %1 (tabo-cli prefs set centExactTotals false garde le calcul classique.)</translation>
    </message>
    <message>
        <source>The language defaults %1 could not be read.</source>
        <translation>Les réglages de langue %1 n’ont pas pu être lus.</translation>
    </message>
    <message>
        <source>List every preference with its type and value (stored, or the default); read or write one; install the language defaults (0 English, 1 German, 2 French, 3 Spanish); put the last good settings (Tabo.conf.bak) back in place of a damaged file.</source>
        <translation>Liste chaque préférence avec son type et sa valeur (enregistrée ou par défaut) ; en lit ou écrit une ; installe les réglages de langue (0 anglais, 1 allemand, 2 français, 3 espagnol) ; remet les derniers bons réglages (Tabo.conf.bak) à la place d’un fichier endommagé.</translation>
    </message>
    <message>
        <source>--json belongs to “prefs list”.</source>
        <translation>--json va avec “prefs list”.</translation>
    </message>
    <message>
        <source>The database was not moved; the settings still name where it is.</source>
        <translation>La base de données n’a pas été déplacée ; les réglages indiquent toujours son emplacement.</translation>
    </message>
    <message>
        <source>No language defaults for %1; nothing was installed.</source>
        <translation>Aucun réglage de langue pour %1 ; rien n’a été installé.</translation>
    </message>
</context>
<context>
    <name>PrintCommand</name>
    <message>
        <source>Printer to use.</source>
        <translation>Imprimante à utiliser.</translation>
    </message>
    <message>
        <source>Print a document (default printer unless --printer); an invoice is then marked as sent when markInvoiceAsSent is on.</source>
        <translation>Imprime un document (imprimante par défaut sauf avec --printer) ; une facture est alors marquée envoyée si markInvoiceAsSent est actif.</translation>
    </message>
    <message>
        <source>--printer needs a printer name.</source>
        <translation>--printer demande un nom d’imprimante.</translation>
    </message>
</context>
<context>
    <name>PrintSystem</name>
    <message>
        <source>The print system did not answer in time.</source>
        <translation>Le système d’impression n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>lp ended with code %1</source>
        <translation>lp s’est terminé avec le code %1</translation>
    </message>
    <message>
        <source>The document could not be printed: %1</source>
        <translation>Le document n’a pas pu être imprimé : %1</translation>
    </message>
    <message>
        <source>The print system could not be reached: the program &quot;lp&quot; was not found.</source>
        <translation>Le système d’impression est injoignable : le programme &quot;lp&quot; est introuvable.</translation>
    </message>
</context>
<context>
    <name>PrinterDocument</name>
    <message>
        <source>Error: Recursion</source>
        <translation>Erreur : récursion</translation>
    </message>
</context>
<context>
    <name>PropertyList</name>
    <message>
        <source>empty property list</source>
        <translation>liste de propriétés vide</translation>
    </message>
    <message>
        <source>property list too large</source>
        <translation>liste de propriétés trop grande</translation>
    </message>
    <message>
        <source>unsupported binary property list version</source>
        <translation>version de liste de propriétés binaire non prise en charge</translation>
    </message>
    <message>
        <source>not a property list</source>
        <translation>pas une liste de propriétés</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>impossible d’ouvrir %1 : %2</translation>
    </message>
</context>
<context>
    <name>ProtectedFiles</name>
    <message>
        <source>the database</source>
        <translation>la base de données</translation>
    </message>
    <message>
        <source>a file of the database</source>
        <translation>un fichier de la base de données</translation>
    </message>
    <message>
        <source>the settings file</source>
        <translation>le fichier de réglages</translation>
    </message>
    <message>
        <source>the settings file&apos;s lock</source>
        <translation>le verrou du fichier de réglages</translation>
    </message>
    <message>
        <source>the kept copy of the settings</source>
        <translation>la copie conservée des réglages</translation>
    </message>
    <message>
        <source>an automatic backup</source>
        <translation>une sauvegarde automatique</translation>
    </message>
    <message>
        <source>The file “%1” could not be written: %2</source>
        <translation>Le fichier “%1” n’a pas pu être écrit : %2</translation>
    </message>
    <message>
        <source>“%1” is %2 (%3). Tabo never writes anything else onto it; please choose another file.</source>
        <translation>“%1” est %2 (%3). Tabo n’écrit jamais rien d’autre dessus ; veuillez choisir un autre fichier.</translation>
    </message>
</context>
<context>
    <name>QVPreferencePanel</name>
    <message>
        <source>Company</source>
        <translation>Entreprise</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Facture</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Taxes</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Région</translation>
    </message>
    <message>
        <source>Clients</source>
        <translation>Clients</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Devis</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Relance</translation>
    </message>
    <message>
        <source>Slip</source>
        <translation>Bon</translation>
    </message>
</context>
<context>
    <name>Reader</name>
    <message>
        <source>The file nests its elements more deeply than any e-invoice does.</source>
        <translation>Le fichier imbrique ses éléments plus profondément qu’aucune facture électronique.</translation>
    </message>
    <message>
        <source>The CII file has no trade transaction: it holds no invoice.</source>
        <translation>Le fichier CII n’a pas de transaction commerciale : il ne contient aucune facture.</translation>
    </message>
    <message>
        <source>The CII file has no settlement: its totals are missing.</source>
        <translation>Le fichier CII n’a pas de règlement : ses totaux manquent.</translation>
    </message>
    <message>
        <source>The invoice states no grand total or amount due: its totals are missing.</source>
        <translation>La facture n’indique ni total ni montant dû : ses totaux manquent.</translation>
    </message>
    <message>
        <source>The invoice states no total with VAT or amount due: its totals are missing.</source>
        <translation>La facture n’indique ni total TTC ni montant dû : ses totaux manquent.</translation>
    </message>
    <message>
        <source>The PDF carries no e-invoice: it has no XML attachment.</source>
        <translation>Le PDF ne contient pas de facture électronique : il n’a pas de pièce jointe XML.</translation>
    </message>
    <message>
        <source>The PDF&apos;s e-invoice attachment cannot be unpacked.</source>
        <translation>La pièce jointe de facture électronique du PDF ne peut pas être décompressée.</translation>
    </message>
    <message>
        <source>The PDF is too large to be read.</source>
        <translation>Le PDF est trop volumineux pour être lu.</translation>
    </message>
    <message>
        <source>The PDF cannot be read: %1</source>
        <translation>Le PDF ne peut pas être lu : %1</translation>
    </message>
    <message>
        <source>This is not an e-invoice: its root is “%1” in the namespace “%2”, not a CII or UBL invoice.</source>
        <translation>Ce n’est pas une facture électronique : sa racine est “%1” dans l’espace de noms “%2”, pas une facture CII ou UBL.</translation>
    </message>
    <message>
        <source>The e-invoice states amounts that are no readable amounts of money: %1.</source>
        <translation>La facture électronique indique des montants qui ne sont pas des sommes lisibles : %1.</translation>
    </message>
    <message>
        <source>There is no file “%1”.</source>
        <translation>Il n’y a pas de fichier “%1”.</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2</source>
        <translation>“%1” ne peut pas être lu : %2</translation>
    </message>
    <message>
        <source>Line %1 (%2) is %3, but its quantity %4 × price %5 makes %6.</source>
        <translation>La ligne %1 (%2) vaut %3, mais sa quantité %4 × prix %5 donne %6.</translation>
    </message>
    <message>
        <source>The sum of the lines</source>
        <translation>La somme des lignes</translation>
    </message>
    <message>
        <source>The allowances</source>
        <translation>Les remises</translation>
    </message>
    <message>
        <source>The charges</source>
        <translation>Les frais</translation>
    </message>
    <message>
        <source>The total without VAT</source>
        <translation>Le total HT</translation>
    </message>
    <message>
        <source>The VAT</source>
        <translation>La TVA</translation>
    </message>
    <message>
        <source>The total with VAT</source>
        <translation>Le total TTC</translation>
    </message>
    <message>
        <source>The amount due</source>
        <translation>Le montant dû</translation>
    </message>
    <message>
        <source>Tax number %1</source>
        <translation>Numéro fiscal %1</translation>
    </message>
    <message>
        <source>Contact: %1</source>
        <translation>Contact : %1</translation>
    </message>
    <message>
        <source>Credit note</source>
        <translation>Avoir</translation>
    </message>
    <message>
        <source> in a PDF</source>
        <translation> dans un PDF</translation>
    </message>
    <message>
        <source>Date %1</source>
        <translation>Date %1</translation>
    </message>
    <message>
        <source>due %1</source>
        <translation>échéance %1</translation>
    </message>
    <message>
        <source>delivered %1</source>
        <translation>livré le %1</translation>
    </message>
    <message>
        <source>buyer reference %1</source>
        <translation>référence acheteur %1</translation>
    </message>
    <message>
        <source>for invoice %1 %2</source>
        <translation>pour la facture %1 %2</translation>
    </message>
    <message>
        <source>Sum of lines</source>
        <translation>Somme des lignes</translation>
    </message>
    <message>
        <source>Total without VAT</source>
        <translation>Total HT</translation>
    </message>
    <message>
        <source>VAT %1 on %2%3</source>
        <translation>TVA %1 sur %2%3</translation>
    </message>
    <message>
        <source>Total with VAT</source>
        <translation>Total TTC</translation>
    </message>
    <message>
        <source>Paid in advance</source>
        <translation>Payé d’avance</translation>
    </message>
    <message>
        <source>Paid by third parties</source>
        <translation>Payé par des tiers</translation>
    </message>
    <message>
        <source>Amount due</source>
        <translation>Montant dû</translation>
    </message>
    <message>
        <source>The file declares a DTD; e-invoices never do, so it is not read.</source>
        <translation>Le fichier déclare une DTD ; les factures électroniques ne le font jamais, il n’est donc pas lu.</translation>
    </message>
    <message>
        <source>The PDF&apos;s e-invoice unpacks to more than %1 MB; e-invoices are far smaller, so it is not read.</source>
        <translation>La facture électronique du PDF dépasse %1 Mo une fois décompressée ; les factures électroniques sont bien plus petites, elle n’est donc pas lue.</translation>
    </message>
    <message>
        <source>“%1” is %2 MB large; e-invoices are far smaller, so it is not read.</source>
        <translation>“%1” fait %2 Mo ; les factures électroniques sont bien plus petites, il n’est donc pas lu.</translation>
    </message>
    <message>
        <source>%1 is %2, but its parts add up to %3.</source>
        <translation>%1 vaut %2, mais ses parties font %3.</translation>
    </message>
    <message>
        <source>VAT ID %1</source>
        <translation>N° TVA %1</translation>
    </message>
    <message>
        <source>E-invoices: %1</source>
        <translation>Factures électroniques : %1</translation>
    </message>
    <message>
        <source>Received e-invoice · %1%2 · %3</source>
        <translation>Facture électronique reçue · %1%2 · %3</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Facture</translation>
    </message>
    <message>
        <source>Seller</source>
        <translation>Vendeur</translation>
    </message>
    <message>
        <source>Buyer</source>
        <translation>Acheteur</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Article</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Prix</translation>
    </message>
    <message>
        <source>VAT</source>
        <translation>TVA</translation>
    </message>
    <message>
        <source>Net</source>
        <translation>HT</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Frais</translation>
    </message>
    <message>
        <source>Allowance</source>
        <translation>Remise</translation>
    </message>
    <message>
        <source>Rounding</source>
        <translation>Arrondi</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Paiement</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Its sums do not add up</source>
        <translation>Ses totaux ne concordent pas</translation>
    </message>
</context>
<context>
    <name>Recurrence</name>
    <message>
        <source>month</source>
        <translation>mois</translation>
    </message>
    <message>
        <source>months</source>
        <translation>mois</translation>
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
        <translation>an</translation>
    </message>
    <message>
        <source>years</source>
        <translation>ans</translation>
    </message>
    <message>
        <source>week</source>
        <translation>semaine</translation>
    </message>
    <message>
        <source>weeks</source>
        <translation>semaines</translation>
    </message>
    <message>
        <source>“%1” is no interval: say month, quarter, year or a number of weeks (“2 weeks”).</source>
        <translation>« %1 » n’est pas un intervalle : indiquez mois, trimestre, an ou un nombre de semaines (« 2 semaines »).</translation>
    </message>
    <message>
        <source>An invoice cannot repeat every %1 %2; the interval must be at least 1.</source>
        <translation>Une facture ne peut pas se répéter tous les %1 %2 ; l’intervalle doit valoir au moins 1.</translation>
    </message>
    <message>
        <source>A repeated invoice needs the day of its first invoice.</source>
        <translation>Une facture récurrente a besoin du jour de sa première facture.</translation>
    </message>
    <message>
        <source>The last day (%1) lies before the first (%2).</source>
        <translation>Le dernier jour (%1) précède le premier (%2).</translation>
    </message>
    <message>
        <source>The number of invoices cannot be negative.</source>
        <translation>Le nombre de factures ne peut pas être négatif.</translation>
    </message>
    <message>
        <source>every week</source>
        <translation>chaque semaine</translation>
    </message>
    <message>
        <source>every %1 weeks</source>
        <translation>toutes les %1 semaines</translation>
    </message>
    <message>
        <source>every month</source>
        <translation>chaque mois</translation>
    </message>
    <message>
        <source>every quarter</source>
        <translation>chaque trimestre</translation>
    </message>
    <message>
        <source>every year</source>
        <translation>chaque année</translation>
    </message>
    <message>
        <source>every %1 months</source>
        <translation>tous les %1 mois</translation>
    </message>
</context>
<context>
    <name>RecurringCommand</name>
    <message>
        <source>month, quarter, year or N weeks.</source>
        <translation>month, quarter, year ou N weeks.</translation>
    </message>
    <message>
        <source>The day of the first invoice.</source>
        <translation>Le jour de la première facture.</translation>
    </message>
    <message>
        <source>The last day an invoice may fall on.</source>
        <translation>Le dernier jour où une facture peut tomber.</translation>
    </message>
    <message>
        <source>How many invoices in all.</source>
        <translation>Combien de factures au total.</translation>
    </message>
    <message>
        <source>add: e-mail each invoice when written; run: send those now.</source>
        <translation>add : envoyer chaque facture par e-mail une fois établie ; run : les envoyer maintenant.</translation>
    </message>
    <message>
        <source>Say which invoices would be written; write none.</source>
        <translation>Dire quelles factures seraient établies ; n’en établir aucune.</translation>
    </message>
    <message>
        <source>Invoices that repeat. add copies an invoice or a template on every date from --from: numbered by the invoice pattern, dated on its day, %PERIOD% in its texts filled with the period it bills. run writes every date that has come, those missed meanwhile too, each once; with --send it e-mails those whose schedule says so.</source>
        <translation>Des factures qui se répètent. add copie une facture ou un modèle à chaque date à partir de --from : numérotée selon le modèle de numéro des factures, datée de son jour, %PERIOD% dans ses textes remplacé par la période facturée. run établit chaque date arrivée, y compris celles manquées entre-temps, chacune une fois ; avec --send, il envoie par e-mail celles dont l’échéancier le prévoit.</translation>
    </message>
    <message>
        <source>Unknown “%1”: add, list, pause, resume, remove or run.</source>
        <translation>« %1 » inconnu : add, list, pause, resume, remove ou run.</translation>
    </message>
    <message>
        <source>%1 takes the number of a repeated invoice, as the list shows it.</source>
        <translation>%1 attend le numéro d’une facture récurrente, tel que la liste l’affiche.</translation>
    </message>
    <message>
        <source>add needs --every and --from.</source>
        <translation>add a besoin de --every et de --from.</translation>
    </message>
    <message>
        <source>Give --until or --count, not both.</source>
        <translation>Indiquez --until ou --count, pas les deux.</translation>
    </message>
    <message>
        <source>Dates are written as YYYY-MM-DD.</source>
        <translation>Les dates s’écrivent AAAA-MM-JJ.</translation>
    </message>
    <message>
        <source>--count takes a number of invoices above 0.</source>
        <translation>--count attend un nombre de factures supérieur à 0.</translation>
    </message>
    <message>
        <source>Repeated invoice %1: %2 %3, the first on %4.</source>
        <translation>Facture récurrente %1 : %2 %3, la première le %4.</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pause</translation>
    </message>
    <message>
        <source>next %1</source>
        <translation>prochaine %1</translation>
    </message>
    <message>
        <source>ended</source>
        <translation>terminée</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 établies</translation>
    </message>
    <message>
        <source>, e-mailed</source>
        <translation>, par e-mail</translation>
    </message>
    <message>
        <source>Would write repeated invoice %1 of %2.</source>
        <translation>Établirait la facture récurrente %1 du %2.</translation>
    </message>
</context>
<context>
    <name>RecurringCommands</name>
    <message>
        <source>No database is open.</source>
        <translation>Aucune base de données n’est ouverte.</translation>
    </message>
    <message>
        <source>There is no repeated invoice %1.</source>
        <translation>Il n’y a pas de facture récurrente %1.</translation>
    </message>
    <message>
        <source>“%1” (no longer there)</source>
        <translation>« %1 » (n’existe plus)</translation>
    </message>
    <message>
        <source>Template “%1”</source>
        <translation>Modèle « %1 »</translation>
    </message>
    <message>
        <source>Invoice %1</source>
        <translation>Facture %1</translation>
    </message>
    <message>
        <source>Invoice %1 (%2)</source>
        <translation>Facture %1 (%2)</translation>
    </message>
    <message>
        <source>“%1” names %2 documents; give the document&apos;s ID instead.</source>
        <translation>« %1 » désigne %2 documents ; indiquez plutôt l’identifiant du document.</translation>
    </message>
    <message>
        <source>“%1” is a quote; only an invoice or a template repeats.</source>
        <translation>« %1 » est un devis ; seule une facture ou un modèle se répète.</translation>
    </message>
    <message>
        <source>There is no invoice or template “%1”.</source>
        <translation>Il n’y a ni facture ni modèle « %1 ».</translation>
    </message>
    <message>
        <source>Repeated invoice %1 is not written: its invoice or template “%2” is no longer there.</source>
        <translation>La facture récurrente %1 n’est pas établie : sa facture ou son modèle « %2 » n’existe plus.</translation>
    </message>
</context>
<context>
    <name>ReminderTimer</name>
    <message>
        <source>systemd could not be asked (%1 did not start).</source>
        <translation>systemd n’a pas pu être interrogé (%1 n’a pas démarré).</translation>
    </message>
    <message>
        <source>systemd did not answer in time.</source>
        <translation>systemd n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>systemd refused: %1</source>
        <translation>systemd a refusé : %1</translation>
    </message>
    <message>
        <source>The reminder timer needs tabo-cli, which is not at “%1”.</source>
        <translation>Le minuteur de rappels a besoin de tabo-cli, qui n’est pas à “%1”.</translation>
    </message>
    <message>
        <source>The file “%1” could not be written.</source>
        <translation>Le fichier “%1” n’a pas pu être écrit.</translation>
    </message>
    <message>
        <source>The reminder timer could not be installed. </source>
        <translation>Le minuteur de rappels n’a pas pu être installé. </translation>
    </message>
    <message>
        <source>The file “%1” could not be removed.</source>
        <translation>Le fichier “%1” n’a pas pu être supprimé.</translation>
    </message>
</context>
<context>
    <name>RenderCommand</name>
    <message>
        <source>Write a document&apos;s page as HTML or PDF (as a payment reminder or delivery slip with the sheet&apos;s default texts), or one PDF per document, named after its number, into a folder. --design renders through that design instead of the default one.</source>
        <translation>Écrit la page d’un document en HTML ou en PDF (comme relance ou bon de livraison avec les textes par défaut de la feuille), ou un PDF par document, nommé d’après son numéro, dans un dossier. --design rend avec ce design au lieu de celui par défaut.</translation>
    </message>
    <message>
        <source>HTML file to write.</source>
        <translation>Fichier HTML à écrire.</translation>
    </message>
    <message>
        <source>PDF file to write.</source>
        <translation>Fichier PDF à écrire.</translation>
    </message>
    <message>
        <source>Folder for one PDF per document.</source>
        <translation>Dossier recevant un PDF par document.</translation>
    </message>
    <message>
        <source>Every document the list shows.</source>
        <translation>Chaque document affiché par la liste.</translation>
    </message>
    <message>
        <source>Filter tag (with --all).</source>
        <translation>Étiquette de filtre (avec --all).</translation>
    </message>
    <message>
        <source>As a payment reminder.</source>
        <translation>Comme relance de paiement.</translation>
    </message>
    <message>
        <source>As a delivery slip.</source>
        <translation>Comme bon de livraison.</translation>
    </message>
    <message>
        <source>Design to render with.</source>
        <translation>Design utilisé pour le rendu.</translation>
    </message>
    <message>
        <source>Give one of --html, --pdf and --out.</source>
        <translation>Donnez l’une des options --html, --pdf et --out.</translation>
    </message>
    <message>
        <source>Give at most one of --reminder and --slip.</source>
        <translation>Donnez au plus l’une des options --reminder et --slip.</translation>
    </message>
    <message>
        <source>Give IDs or --all, not both.</source>
        <translation>Donnez des identifiants ou --all, pas les deux.</translation>
    </message>
    <message>
        <source>Missing argument.</source>
        <translation>Argument manquant.</translation>
    </message>
    <message>
        <source>The design “%1” cannot be used: its page, row or style text is missing. Choose another design (tabo-cli design list) or fix this one.</source>
        <translation>Le design “%1” ne peut pas être utilisé : son texte de page, de ligne ou de style manque. Choisissez un autre design (tabo-cli design list) ou réparez celui-ci.</translation>
    </message>
    <message>
        <source>The PDF file “%1” could not be created.</source>
        <translation>Le fichier PDF “%1” n’a pas pu être créé.</translation>
    </message>
    <message>
        <source>The folder “%1” could not be created.</source>
        <translation>Le dossier “%1” n’a pas pu être créé.</translation>
    </message>
    <message>
        <source>--filter goes with --all.</source>
        <translation>--filter va avec --all.</translation>
    </message>
    <message>
        <source>--html and --pdf write one document; use --out DIR for several.</source>
        <translation>--html et --pdf écrivent un document ; utilisez --out DIR pour plusieurs.</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>1 invoice</source>
        <translation>1 facture</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Factures</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Envoyée</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>Dû</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Payée</translation>
    </message>
</context>
<context>
    <name>ReportCommand</name>
    <message>
        <source>The report over the documents a filter and search show: counts, sums and averages (with --json by their placeholder names), revenue per month and the five clients with the most. --from and --to limit it to invoices dated in between, both days included.</source>
        <translation>Le rapport sur les documents affichés par un filtre et une recherche : nombres, sommes et moyennes (avec --json sous leurs noms de variables), chiffre d’affaires par mois et les cinq clients les plus importants. --from et --to le limitent aux factures datées entre les deux, bornes comprises.</translation>
    </message>
    <message>
        <source>First day.</source>
        <translation>Premier jour.</translation>
    </message>
    <message>
        <source>Last day.</source>
        <translation>Dernier jour.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>Afficher en JSON.</translation>
    </message>
    <message>
        <source>Write the report page.</source>
        <translation>Écrire la page du rapport.</translation>
    </message>
    <message>
        <source>Write the report as PDF.</source>
        <translation>Écrire le rapport en PDF.</translation>
    </message>
    <message>
        <source>A range needs both --from and --to.</source>
        <translation>Une période demande à la fois --from et --to.</translation>
    </message>
    <message>
        <source>“%1” is not an ISO 8601 date.</source>
        <translation>“%1” n’est pas une date ISO 8601.</translation>
    </message>
    <message>
        <source>The report could not be written to “%1”.</source>
        <translation>Le rapport n’a pas pu être écrit dans “%1”.</translation>
    </message>
</context>
<context>
    <name>ReportCommands</name>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Hint!</source>
        <translation>Remarque !</translation>
    </message>
    <message>
        <source>The report is bound to the arranged invoices in Tabo&apos;s main window. This means you can, for example, search for a client and therefore see the report just for this single client or you can pre-filter all your invoices to see a report only for overdue invoices.</source>
        <translation>Le rapport suit les factures rangées dans la fenêtre principale de Tabo. Vous pouvez par exemple rechercher un client et voir le rapport de ce seul client, ou pré-filtrer vos factures pour ne voir un rapport que des factures en retard.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Ooops!</source>
        <translation>Oups !</translation>
    </message>
    <message>
        <source>Something went really wrong while creating the report.</source>
        <translation>Quelque chose s’est vraiment mal passé lors de la création du rapport.</translation>
    </message>
    <message>
        <source>Save Report as PDF</source>
        <translation>Enregistrer le rapport en PDF</translation>
    </message>
</context>
<context>
    <name>RestoreCommand</name>
    <message>
        <source>Unknown backup “%1”.</source>
        <translation>Sauvegarde inconnue “%1”.</translation>
    </message>
    <message>
        <source>Missing FILE.</source>
        <translation>FILE manquant.</translation>
    </message>
    <message>
        <source>The automatic backup has its own place.</source>
        <translation>La sauvegarde automatique a son propre emplacement.</translation>
    </message>
    <message>
        <source>Nothing was restored from “%1”.</source>
        <translation>Rien n’a été restauré de “%1”.</translation>
    </message>
    <message>
        <source>Warning!</source>
        <translation>Attention !</translation>
    </message>
    <message>
        <source>You are about to restore your Tabo invoices from a backup. This will irretrievably replace any existing invoices. Do you really want to do that?</source>
        <translation>Vous allez restaurer vos factures Tabo depuis une sauvegarde. Toutes les factures existantes seront remplacées irrémédiablement. Voulez-vous vraiment le faire ?</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>Restaurer…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Nothing was restored from the automatic backup.</source>
        <translation>Rien n’a été restauré de la sauvegarde automatique.</translation>
    </message>
    <message>
        <source>Replace the whole database by a .tabo2db backup, the shown documents or the catalogue by their backup, or the shown documents by the automatic backup; needs --yes.</source>
        <translation>Remplace toute la base de données par une sauvegarde .tabo2db, les documents affichés ou le catalogue par leur sauvegarde, ou les documents affichés par la sauvegarde automatique ; demande --yes.</translation>
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
7 allée des Vergers
12345 Moulinbourg
France</translation>
    </message>
    <message>
        <source>Dear Mara Lindqvist</source>
        <translation>Chère Madame Lindqvist</translation>
    </message>
    <message>
        <source>A Lot of Things</source>
        <translation>Beaucoup de choses</translation>
    </message>
</context>
<context>
    <name>ScheduleTable</name>
    <message>
        <source>The repeated invoices could not be read or written: %1</source>
        <translation>Les factures récurrentes n’ont pas pu être lues ou écrites : %1</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>The database could not be opened.</source>
        <translation>La base de données n’a pas pu être ouverte.</translation>
    </message>
    <message>
        <source>No document with ID or number “%1”.</source>
        <translation>Aucun document avec l’identifiant ou le numéro “%1”.</translation>
    </message>
</context>
<context>
    <name>SetCommand</name>
    <message>
        <source>Set one attribute of a document (dates ISO 8601, booleans true/false/1/0, numbers in C notation or NaN). Totals are not recalculated.</source>
        <translation>Définit un attribut d’un document (dates ISO 8601, booléens true/false/1/0, nombres en notation C ou NaN). Les totaux ne sont pas recalculés.</translation>
    </message>
    <message>
        <source>A document&apos;s uniqueID cannot be changed: reminders, the window and every command find the document by it.</source>
        <translation>L’uniqueID d’un document ne peut pas être modifié : les rappels, la fenêtre et chaque commande trouvent le document grâce à lui.</translation>
    </message>
    <message>
        <source>“%1” is no kind: 0 is a quote, 1 an invoice.</source>
        <translation>“%1” n’est pas un type : 0 est un devis, 1 une facture.</translation>
    </message>
    <message>
        <source>“%1” is no status: 0 created, 1 sent, 2 overdue, 3 paid, 4 partly paid.</source>
        <translation>“%1” n’est pas un statut : 0 créée, 1 envoyée, 2 en retard, 3 payée, 4 partiellement payée.</translation>
    </message>
</context>
<context>
    <name>ShippingCommand</name>
    <message>
        <source>Edit the shipping line (keys: </source>
        <translation>Modifier la ligne d’expédition (touches : </translation>
    </message>
    <message>
        <source>); keys not given keep their values. The line is remembered for later unless one with the same title and amount is.</source>
        <translation>) ; les clés non données gardent leur valeur. La ligne est mémorisée pour plus tard, sauf s’il en existe déjà une de même titre et montant.</translation>
    </message>
</context>
<context>
    <name>ShowCommand</name>
    <message>
        <source>Print a document with its lines.</source>
        <translation>Affiche un document avec ses lignes.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>Afficher en JSON.</translation>
    </message>
</context>
<context>
    <name>Statement</name>
    <message>
        <source>Entry %1</source>
        <translation>Écriture %1</translation>
    </message>
    <message>
        <source>%1 has no booking date.</source>
        <translation>%1 n’a pas de date de comptabilisation.</translation>
    </message>
    <message>
        <source>%1 is booked on %2, a day still to come.</source>
        <translation>%1 est comptabilisée le %2, un jour encore à venir.</translation>
    </message>
    <message>
        <source>%1 has no amount above zero.</source>
        <translation>%1 n’a pas de montant supérieur à zéro.</translation>
    </message>
    <message>
        <source>%1 is in “%2”, which is no currency code.</source>
        <translation>%1 est en “%2”, qui n’est pas un code de devise.</translation>
    </message>
    <message>
        <source>This is not a bank statement: its namespace is “%1”, not CAMT.053 or CAMT.054 (versions 001.02 to 001.08).</source>
        <translation>Ce n’est pas un relevé bancaire : son espace de noms est “%1”, pas CAMT.053 ou CAMT.054 (versions 001.02 à 001.08).</translation>
    </message>
    <message>
        <source>The statement holds no account report.</source>
        <translation>Le relevé ne contient aucun rapport de compte.</translation>
    </message>
    <message>
        <source>This is not an MT940 statement: it does not begin with a “:20:” field.</source>
        <translation>Ce n’est pas un relevé MT940 : il ne commence pas par un champ “:20:”.</translation>
    </message>
    <message>
        <source>Entry %1 of the MT940 statement cannot be read: “%2”.</source>
        <translation>L’écriture %1 du relevé MT940 ne peut pas être lue : “%2”.</translation>
    </message>
    <message>
        <source>The file is larger than any bank statement (%1 MB), so it is not read.</source>
        <translation>Le fichier est plus gros que tout relevé bancaire (%1 Mo), il n’est donc pas lu.</translation>
    </message>
    <message>
        <source>The file declares a DTD; bank statements never do, so it is not read.</source>
        <translation>Le fichier déclare une DTD ; les relevés bancaires ne le font jamais, il n’est donc pas lu.</translation>
    </message>
    <message>
        <source>The file nests its elements more deeply than any bank statement does.</source>
        <translation>Le fichier imbrique ses éléments plus profondément qu’aucun relevé bancaire.</translation>
    </message>
    <message>
        <source>The file “%1” could not be read: %2</source>
        <translation>Le fichier “%1” n’a pas pu être lu : %2</translation>
    </message>
    <message>
        <source>The columns of this CSV file are not recognised: %1. Say once which column holds the date, the amount, the payer, the IBAN and the text; Tabo remembers it for files laid out like this one.</source>
        <translation>Les colonnes de ce fichier CSV ne sont pas reconnues : %1. Indiquez une fois quelle colonne contient la date, le montant, le payeur, l’IBAN et le texte ; Tabo le retient pour les fichiers de même présentation.</translation>
    </message>
    <message>
        <source>This is not a bank statement Tabo reads (CAMT.053, CAMT.054, MT940 or CSV).</source>
        <translation>Ce n’est pas un relevé que Tabo lit (CAMT.053, CAMT.054, MT940 ou CSV).</translation>
    </message>
</context>
<context>
    <name>Store</name>
    <message>
        <source>Restore your last complete backup (File ▸ Restore Database, or: tabo-cli restore database FILE --yes), or move the file aside to start a new database and restore the automatic backup of your documents (tabo-cli restore auto --yes).</source>
        <translation>Restaurez votre dernière sauvegarde complète (Fichier ▸ Restaurer la base de données, ou : tabo-cli restore database FICHIER --yes), ou mettez le fichier de côté pour commencer une nouvelle base et restaurez la sauvegarde automatique de vos documents (tabo-cli restore auto --yes).</translation>
    </message>
    <message>
        <source>Quit Tabo and keep the file for now. </source>
        <translation>Quitter Tabo et garder le fichier pour l’instant. </translation>
    </message>
    <message>
        <source>The database “%1” is not a file.</source>
        <translation>La base de données “%1” n’est pas un fichier.</translation>
    </message>
    <message>
        <source>The file “%1” is not a Tabo database.</source>
        <translation>Le fichier “%1” n’est pas une base de données Tabo.</translation>
    </message>
    <message>
        <source>It has been left as it is.</source>
        <translation>Il a été laissé tel quel.</translation>
    </message>
    <message>
        <source>The database file “%1” is empty (0 bytes).</source>
        <translation>Le fichier de base de données “%1” est vide (0 octet).</translation>
    </message>
    <message>
        <source>It has been left as it is. </source>
        <translation>Il a été laissé tel quel. </translation>
    </message>
    <message>
        <source>The database “%1” could not be opened.</source>
        <translation>La base de données “%1” n’a pas pu être ouverte.</translation>
    </message>
    <message>
        <source>The database “%1” could not be read.</source>
        <translation>La base de données “%1” n’a pas pu être lue.</translation>
    </message>
    <message>
        <source>The file “%1” is an SQLite database of another program, not a Tabo database.</source>
        <translation>Le fichier “%1” est une base SQLite d’un autre programme, pas une base de données Tabo.</translation>
    </message>
    <message>
        <source>The database “%1” was written by a newer version of Tabo.</source>
        <translation>La base de données “%1” a été écrite par une version plus récente de Tabo.</translation>
    </message>
    <message>
        <source>The database “%1” is damaged: its document table is missing.</source>
        <translation>La base de données “%1” est endommagée : sa table des documents manque.</translation>
    </message>
    <message>
        <source>The database “%1” could not be updated.</source>
        <translation>La base de données “%1” n’a pas pu être mise à jour.</translation>
    </message>
    <message>
        <source>The database could not be read.</source>
        <translation>La base de données n’a pas pu être lue.</translation>
    </message>
    <message>
        <source>The database could not be replaced.</source>
        <translation>La base de données n’a pas pu être remplacée.</translation>
    </message>
    <message>
        <source>No database is open.</source>
        <translation>Aucune base de données n’est ouverte.</translation>
    </message>
    <message>
        <source>The backup uses another page size than the database.</source>
        <translation>La sauvegarde utilise une autre taille de page que la base de données.</translation>
    </message>
    <message>
        <source>The database file “%1” is damaged; nothing more is written to it.</source>
        <translation>Le fichier de base de données “%1” est endommagé ; plus rien n’y est écrit.</translation>
    </message>
    <message>
        <source>Another program (another Tabo window or tabo-cli) has kept the database busy for 10 seconds. Your changes are still here; try again in a moment.</source>
        <translation>Un autre programme (une autre fenêtre Tabo ou tabo-cli) a occupé la base de données pendant 10 secondes. Vos modifications sont toujours là ; réessayez dans un instant.</translation>
    </message>
    <message>
        <source>Please use that version; the file has been left as it is.</source>
        <translation>Veuillez utiliser cette version ; le fichier a été laissé tel quel.</translation>
    </message>
</context>
<context>
    <name>StoreFile</name>
    <message>
        <source>“%1” could not be renamed to “%2”: %3.</source>
        <translation>“%1” n’a pas pu être renommé en “%2” : %3.</translation>
    </message>
    <message>
        <source>Unable to move temporary store: %1</source>
        <translation>Impossible de déplacer le stockage temporaire : %1</translation>
    </message>
    <message>
        <source>It does not exist or is not a file.</source>
        <translation>Il n’existe pas ou n’est pas un fichier.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Il est vide.</translation>
    </message>
    <message>
        <source>It is not a database file.</source>
        <translation>Ce n’est pas un fichier de base de données.</translation>
    </message>
    <message>
        <source>It is damaged or incomplete (%1).</source>
        <translation>Il est endommagé ou incomplet (%1).</translation>
    </message>
    <message>
        <source>It is a database of another program.</source>
        <translation>C’est une base de données d’un autre programme.</translation>
    </message>
    <message>
        <source>It holds no Tabo data.</source>
        <translation>Il ne contient aucune donnée Tabo.</translation>
    </message>
    <message>
        <source>Its log could not be written back.</source>
        <translation>Son journal n’a pas pu être réécrit.</translation>
    </message>
    <message>
        <source>It could not be read: %1.</source>
        <translation>Il n’a pas pu être lu : %1.</translation>
    </message>
    <message>
        <source>“%1” could not be written: %2.</source>
        <translation>“%1” n’a pas pu être écrit : %2.</translation>
    </message>
    <message>
        <source>Unable to add new store: %1</source>
        <translation>Impossible d’ajouter le nouveau stockage : %1</translation>
    </message>
    <message>
        <source>The restored database could not be opened.</source>
        <translation>La base de données restaurée n’a pas pu être ouverte.</translation>
    </message>
    <message>
        <source>The restored database is missing.</source>
        <translation>La base de données restaurée est absente.</translation>
    </message>
    <message>
        <source>An interrupted restore of “%1” is undone: %2</source>
        <translation>Une restauration interrompue de “%1” a été annulée : %2</translation>
    </message>
    <message>
        <source>It is missing or empty.</source>
        <translation>Il est absent ou vide.</translation>
    </message>
    <message>
        <source>The interrupted move of the database from “%1” cannot be finished: %2</source>
        <translation>Le déplacement interrompu de la base de données depuis “%1” ne peut pas être achevé : %2</translation>
    </message>
    <message>
        <source>Finished the interrupted move of the database from “%1” to “%2”.</source>
        <translation>Le déplacement interrompu de la base de données de “%1” vers “%2” a été achevé.</translation>
    </message>
    <message>
        <source>Removed “%1”, left by an interrupted copy.</source>
        <translation>“%1” supprimé, laissé par une copie interrompue.</translation>
    </message>
    <message>
        <source>“%1” could not be written: no free name for a working copy beside it.</source>
        <translation>“%1” n’a pas pu être écrit : aucun nom libre pour une copie de travail à côté.</translation>
    </message>
    <message>
        <source>Unable to add migratePersistentStore: %1</source>
        <translation>Impossible de migrer le stockage : %1</translation>
    </message>
    <message>
        <source>Unable to acopyItemAtURL: %1</source>
        <translation>Copie impossible : %1</translation>
    </message>
    <message>
        <source>An interrupted restore of “%1” is complete; removing the previous database.</source>
        <translation>Une restauration interrompue de “%1” est achevée ; l’ancienne base de données est supprimée.</translation>
    </message>
</context>
<context>
    <name>StoreJournal</name>
    <message>
        <source>The database could not be read.</source>
        <translation>La base de données n’a pas pu être lue.</translation>
    </message>
</context>
<context>
    <name>StoreRecords</name>
    <message>
        <source>The database could not be read.</source>
        <translation>La base de données n’a pas pu être lue.</translation>
    </message>
    <message>
        <source>The lines of a document could not be read.</source>
        <translation>Les lignes d’un document n’ont pas pu être lues.</translation>
    </message>
    <message>
        <source>A record could not be deleted.</source>
        <translation>Un enregistrement n’a pas pu être supprimé.</translation>
    </message>
    <message>
        <source>A record could not be written.</source>
        <translation>Un enregistrement n’a pas pu être écrit.</translation>
    </message>
    <message>
        <source>The changes could not be saved.</source>
        <translation>Les modifications n’ont pas pu être enregistrées.</translation>
    </message>
    <message>
        <source>Failed to initialize the store</source>
        <translation>Impossible d’initialiser le stockage</translation>
    </message>
    <message>
        <source>There was an error building up the data file.</source>
        <translation>Une erreur s’est produite lors de la construction du fichier de données.</translation>
    </message>
    <message>
        <source>Another program changed the same records after they were read here.</source>
        <translation>Un autre programme a modifié les mêmes enregistrements après leur lecture ici.</translation>
    </message>
    <message>
        <source>No database is open.</source>
        <translation>Aucune base de données n’est ouverte.</translation>
    </message>
    <message>
        <source>The database could not be written.</source>
        <translation>La base de données n’a pas pu être écrite.</translation>
    </message>
</context>
<context>
    <name>TemplateCommand</name>
    <message>
        <source>Groups to take over.</source>
        <translation>Groupes à reprendre.</translation>
    </message>
    <message>
        <source>The template&apos;s description.</source>
        <translation>La description du modèle.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>Afficher en JSON.</translation>
    </message>
    <message>
        <source>A template needs a name.</source>
        <translation>Un modèle a besoin d’un nom.</translation>
    </message>
    <message>
        <source>A template named “%1” exists already.</source>
        <translation>Un modèle nommé “%1” existe déjà.</translation>
    </message>
    <message>
        <source>No template named “%1”.</source>
        <translation>Aucun modèle nommé “%1”.</translation>
    </message>
    <message>
        <source>Save a document as a named template (--include picks the groups for this save; otherwise the preferences do), fill a document from one, list or delete them.</source>
        <translation>Enregistre un document comme modèle nommé (--include choisit les groupes pour cet enregistrement, sinon les préférences), remplit un document à partir d’un modèle, les liste ou les supprime.</translation>
    </message>
    <message>
        <source>--include and --notes belong to “template save”.</source>
        <translation>--include et --notes vont avec “template save”.</translation>
    </message>
    <message>
        <source>--json belongs to “template list”.</source>
        <translation>--json va avec “template list”.</translation>
    </message>
</context>
<context>
    <name>TemplateCommands</name>
    <message>
        <source>Error!</source>
        <translation>Erreur !</translation>
    </message>
    <message>
        <source>The selected invoice is marked as already sent. If you really need to make changes, please set its status back to &apos;Created&apos; first. Then you will also be able to resend the modified invoice.</source>
        <translation>La facture choisie est déjà marquée comme envoyée. Si vous devez vraiment la modifier, remettez d’abord son statut à “Créée”. Vous pourrez ensuite renvoyer la facture modifiée.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Modèle</translation>
    </message>
</context>
<context>
    <name>XmlPlist</name>
    <message>
        <source>cannot write a value of type %1</source>
        <translation>impossible d’écrire une valeur de type %1</translation>
    </message>
    <message>
        <source>date out of range</source>
        <translation>date hors limites</translation>
    </message>
    <message>
        <source>unknown XML element</source>
        <translation>élément XML inconnu</translation>
    </message>
    <message>
        <source>not a valid XML property list</source>
        <translation>pas une liste de propriétés XML valide</translation>
    </message>
</context>
<context>
    <name>XmlTree</name>
    <message>
        <source>The file is not well-formed XML (line %1: %2).</source>
        <translation>Le fichier n’est pas du XML bien formé (ligne %1 : %2).</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Usage: tabo-cli COMMAND [ARGUMENTS]</source>
        <translation>Utilisation : tabo-cli COMMANDE [ARGUMENTS]</translation>
    </message>
    <message>
        <source>Missing command. Run “tabo-cli --help” for usage.</source>
        <translation>Commande manquante. Lancez “tabo-cli --help” pour l’utilisation.</translation>
    </message>
    <message>
        <source>Unknown option “%1”.</source>
        <translation>Option inconnue “%1”.</translation>
    </message>
    <message>
        <source>Unknown command “%1”.</source>
        <translation>Commande inconnue “%1”.</translation>
    </message>
    <message>
        <source> Run “tabo-cli --help” for usage.</source>
        <translation> Lancez “tabo-cli --help” pour l’utilisation.</translation>
    </message>
    <message>
        <source>Invoices and quotes for freelancers and small businesses.</source>
        <translation>Factures et devis pour indépendants et petites entreprises.</translation>
    </message>
    <message>
        <source>Start with the list filtered to the invoice with this unique ID.</source>
        <translation>Commencer avec la liste filtrée sur la facture portant cet identifiant unique.</translation>
    </message>
    <message>
        <source>Start with a new invoice.</source>
        <translation>Commencer par une nouvelle facture.</translation>
    </message>
    <message>
        <source>Start with a new quote.</source>
        <translation>Commencer par un nouveau devis.</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Erreur !</translation>
    </message>
    <message>
        <source>Restore Last Good Settings</source>
        <translation>Restaurer les derniers bons réglages</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Commandes :</translation>
    </message>
    <message>
        <source>Documents, designs, backups or e-invoices to open.</source>
        <translation>Documents, designs, sauvegardes ou factures électroniques à ouvrir.</translation>
    </message>
</context>
<context>
    <name>tabo::AboutDialog</name>
    <message>
        <source>About Tabo</source>
        <translation>À propos de Tabo</translation>
    </message>
    <message>
        <source>Tabo icon</source>
        <translation>Icône de Tabo</translation>
    </message>
    <message>
        <source>Invoices and quotes for freelancers and small businesses.</source>
        <translation>Factures et devis pour indépendants et petites entreprises.</translation>
    </message>
    <message>
        <source>Licence: proprietary; all rights reserved.</source>
        <translation>Licence : propriétaire ; tous droits réservés.</translation>
    </message>
    <message>
        <source>Built with</source>
        <translation>Construit avec</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothèque</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>Bibliothèques</translation>
    </message>
</context>
<context>
    <name>tabo::AccountingExportSheet</name>
    <message>
        <source>All except created</source>
        <translation>Tous sauf les créés</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Payée</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>En retard</translation>
    </message>
    <message>
        <source>One summary line per invoice</source>
        <translation>Une ligne de synthèse par facture</translation>
    </message>
    <message>
        <source>Every line</source>
        <translation>Chaque ligne</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Du :</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Au :</translation>
    </message>
    <message>
        <source>Invoices:</source>
        <translation>Factures :</translation>
    </message>
    <message>
        <source>Lines:</source>
        <translation>Lignes :</translation>
    </message>
    <message>
        <source>1 invoice will be sent.</source>
        <translation>1 facture sera envoyée.</translation>
    </message>
    <message>
        <source>%1 invoices will be sent.</source>
        <translation>%1 factures seront envoyées.</translation>
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
        <translation>Contacts</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Récents</translation>
    </message>
    <message>
        <source>E-invoice</source>
        <translation>Facture électronique</translation>
    </message>
    <message>
        <source>Generate</source>
        <translation>Générer</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse :</translation>
    </message>
    <message>
        <source>Client number:</source>
        <translation>Numéro client :</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-mail :</translation>
    </message>
    <message>
        <source>VAT ID:</source>
        <translation>N° TVA :</translation>
    </message>
    <message>
        <source>Salutation:</source>
        <translation>Formule d’appel :</translation>
    </message>
    <message>
        <source>First name:</source>
        <translation>Prénom :</translation>
    </message>
    <message>
        <source>Last name:</source>
        <translation>Nom :</translation>
    </message>
    <message>
        <source>Use Address</source>
        <translation>Utiliser l’adresse</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Utiliser</translation>
    </message>
    <message>
        <source>Company or name:</source>
        <translation>Entreprise ou nom :</translation>
    </message>
    <message>
        <source>Street:</source>
        <translation>Rue :</translation>
    </message>
    <message>
        <source>Postcode:</source>
        <translation>Code postal :</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ville :</translation>
    </message>
    <message>
        <source>Country code:</source>
        <translation>Code pays :</translation>
    </message>
    <message>
        <source>Buyer reference:</source>
        <translation>Référence acheteur :</translation>
    </message>
    <message>
        <source>E-invoice address:</source>
        <translation>Adresse de facturation électronique :</translation>
    </message>
    <message>
        <source>DE, FR, AT…</source>
        <translation>DE, FR, BE…</translation>
    </message>
    <message>
        <source>Leitweg-ID of a public authority</source>
        <translation>Leitweg-ID d’une administration publique</translation>
    </message>
    <message>
        <source>e-mail or scheme:identifier</source>
        <translation>e-mail ou schéma:identifiant</translation>
    </message>
    <message>
        <source>Choose vCard File</source>
        <translation>Choisir le fichier vCard</translation>
    </message>
</context>
<context>
    <name>tabo::CatalogueWindow</name>
    <message>
        <source>Catalogue</source>
        <translation>Catalogue</translation>
    </message>
    <message>
        <source>Search title, article number or unit</source>
        <translation>Rechercher titre, référence ou unité</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Taxe %1</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Prix</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Article number</source>
        <translation>Référence</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Recherche</translation>
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
        <translation>Prendre le client dans vos contacts ou les adresses récentes</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom :</translation>
    </message>
    <message>
        <source>Salutation:</source>
        <translation>Formule d’appel :</translation>
    </message>
    <message>
        <source>Client number:</source>
        <translation>Numéro client :</translation>
    </message>
    <message>
        <source>VAT ID:</source>
        <translation>N° TVA :</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-mail :</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse :</translation>
    </message>
    <message>
        <source>Heading:</source>
        <translation>Titre :</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>Numéro :</translation>
    </message>
    <message>
        <source>Subject:</source>
        <translation>Objet :</translation>
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
        <translation>Aucun fichier vCard choisi pour l’instant.</translation>
    </message>
    <message>
        <source>Use Contact</source>
        <translation>Utiliser le contact</translation>
    </message>
    <message>
        <source>Choose vCard File…</source>
        <translation>Choisir le fichier vCard…</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contacts</translation>
    </message>
</context>
<context>
    <name>tabo::DatesPage</name>
    <message>
        <source>Dispatched on</source>
        <translation>Expédié le</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Créée</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Envoyée</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>En retard</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Payée</translation>
    </message>
    <message>
        <source>Partly paid</source>
        <translation>Partiellement payée</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Date :</translation>
    </message>
    <message>
        <source>Dispatch number:</source>
        <translation>Numéro d’expédition :</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Statut :</translation>
    </message>
    <message>
        <source>Paid amount:</source>
        <translation>Montant payé :</translation>
    </message>
    <message>
        <source>Valid until:</source>
        <translation>Valable jusqu’au :</translation>
    </message>
    <message>
        <source>Due:</source>
        <translation>Échéance :</translation>
    </message>
</context>
<context>
    <name>tabo::DesignChoiceSheet</name>
    <message>
        <source>Choose Design</source>
        <translation>Choisir le design</translation>
    </message>
    <message>
        <source>Choose the design your documents are printed with.</source>
        <translation>Choisissez le design avec lequel vos documents sont imprimés.</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
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
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Make Default</source>
        <translation>Définir par défaut</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Stylesheet</source>
        <translation>Feuille de style</translation>
    </message>
    <message>
        <source>Documents are rendered with this design.</source>
        <translation>Les documents sont rendus avec ce design.</translation>
    </message>
    <message>
        <source>The preview could not be shown.</source>
        <translation>L’aperçu n’a pas pu être affiché.</translation>
    </message>
    <message>
        <source>Design Preview</source>
        <translation>Aperçu du design</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimer…</translation>
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
        <translation>La page est vide.</translation>
    </message>
    <message>
        <source>The row is empty.</source>
        <translation>La ligne est vide.</translation>
    </message>
    <message>
        <source>Page, line %1: a comment is not closed (“--&gt;” missing).</source>
        <translation>Page, ligne %1 : un commentaire n’est pas fermé (“--&gt;” manquant).</translation>
    </message>
    <message>
        <source>Page, line %1: a tag is not closed (“&gt;” missing).</source>
        <translation>Page, ligne %1 : une balise n’est pas fermée (“&gt;” manquant).</translation>
    </message>
    <message>
        <source>Row, line %1: a comment is not closed (“--&gt;” missing).</source>
        <translation>Ligne de tableau, ligne %1 : un commentaire n’est pas fermé (“--&gt;” manquant).</translation>
    </message>
    <message>
        <source>Row, line %1: a tag is not closed (“&gt;” missing).</source>
        <translation>Ligne de tableau, ligne %1 : une balise n’est pas fermée (“&gt;” manquant).</translation>
    </message>
    <message>
        <source>Stylesheet, line %1: a comment is not closed (“*/” missing).</source>
        <translation>Feuille de style, ligne %1 : un commentaire n’est pas fermé (“*/” manquant).</translation>
    </message>
    <message>
        <source>Stylesheet: a “{” and a “}” do not pair up.</source>
        <translation>Feuille de style : une “{” et une “}” ne s’apparient pas.</translation>
    </message>
    <message>
        <source>The page could not be rendered.</source>
        <translation>La page n’a pas pu être rendue.</translation>
    </message>
</context>
<context>
    <name>tabo::DiscountPopover</name>
    <message>
        <source>Grant a discount on this document</source>
        <translation>Accorder une remise sur ce document</translation>
    </message>
    <message>
        <source>Fixed amount:</source>
        <translation>Montant fixe :</translation>
    </message>
    <message>
        <source>Percentage:</source>
        <translation>Pourcentage :</translation>
    </message>
    <message>
        <source>Show a second line:</source>
        <translation>Afficher une seconde ligne :</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titre :</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The discount could not be changed.</source>
        <translation>La remise n’a pas pu être modifiée.</translation>
    </message>
    <message>
        <source>Second line</source>
        <translation>Seconde ligne</translation>
    </message>
</context>
<context>
    <name>tabo::DocumentActions</name>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Convert to Invoice</source>
        <translation>Convertir en facture</translation>
    </message>
    <message>
        <source>Cancel Invoice…</source>
        <translation>Annuler la facture…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Add Item…</source>
        <translation>Ajouter un article…</translation>
    </message>
    <message>
        <source>Delete Item</source>
        <translation>Supprimer l’article</translation>
    </message>
    <message>
        <source>A copy of the selected document with a new number</source>
        <translation>Une copie du document choisi avec un nouveau numéro</translation>
    </message>
    <message>
        <source>Turn the selected quote into an invoice</source>
        <translation>Convertir le devis choisi en facture</translation>
    </message>
    <message>
        <source>A credit note that takes back a sent or paid invoice</source>
        <translation>Un avoir qui annule une facture envoyée ou payée</translation>
    </message>
    <message>
        <source>Delete Quote</source>
        <translation>Supprimer le devis</translation>
    </message>
    <message>
        <source>Delete Invoice</source>
        <translation>Supprimer la facture</translation>
    </message>
</context>
<context>
    <name>tabo::DocumentEditor</name>
    <message>
        <source>Select a document in the list, or create one.</source>
        <translation>Choisissez un document dans la liste, ou créez-en un.</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Articles</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Textes</translation>
    </message>
    <message>
        <source>Dates and status</source>
        <translation>Dates et statut</translation>
    </message>
</context>
<context>
    <name>tabo::DocumentHeader</name>
    <message>
        <source>Invoice</source>
        <translation>Facture</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Devis</translation>
    </message>
    <message>
        <source>No client yet</source>
        <translation>Pas encore de client</translation>
    </message>
</context>
<context>
    <name>tabo::DocumentListPane</name>
    <message>
        <source>No documents yet — choose New Invoice to write your first.</source>
        <translation>Pas encore de documents — choisissez “Nouvelle facture” pour écrire la première.</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
</context>
<context>
    <name>tabo::DocumentTableModel</name>
    <message>
        <source>Quote</source>
        <translation>Devis</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Envoyée</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>En retard</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Payée</translation>
    </message>
    <message>
        <source>Partly paid</source>
        <translation>Partiellement payée</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Créée</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Objet</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Statut</translation>
    </message>
</context>
<context>
    <name>tabo::ExportSheet</name>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Enregistrer…</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
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
        <translation>Veuillez saisir un nombre, par exemple 12,50.</translation>
    </message>
</context>
<context>
    <name>tabo::FileMenu</name>
    <message>
        <source>Export Document…</source>
        <translation>Exporter le document…</translation>
    </message>
    <message>
        <source>Export Shown Documents as XML…</source>
        <translation>Exporter les documents affichés en XML…</translation>
    </message>
    <message>
        <source>Export All Documents as XML…</source>
        <translation>Exporter tous les documents en XML…</translation>
    </message>
    <message>
        <source>Export Invoices Dump…</source>
        <translation>Exporter le vidage des factures…</translation>
    </message>
    <message>
        <source>Import Document…</source>
        <translation>Importer un document…</translation>
    </message>
    <message>
        <source>Back Up Database…</source>
        <translation>Sauvegarder la base de données…</translation>
    </message>
    <message>
        <source>Restore Database…</source>
        <translation>Restaurer la base de données…</translation>
    </message>
    <message>
        <source>Back Up Documents…</source>
        <translation>Sauvegarder les documents…</translation>
    </message>
    <message>
        <source>Restore Documents…</source>
        <translation>Restaurer les documents…</translation>
    </message>
    <message>
        <source>Back Up Catalogue…</source>
        <translation>Sauvegarder le catalogue…</translation>
    </message>
    <message>
        <source>Restore Catalogue…</source>
        <translation>Restaurer le catalogue…</translation>
    </message>
    <message>
        <source>Restore Automatic Backup…</source>
        <translation>Restaurer la sauvegarde automatique…</translation>
    </message>
    <message>
        <source>Send Invoices To Vorlux…</source>
        <translation>Envoyer les factures à Vorlux…</translation>
    </message>
    <message>
        <source>Send Invoices To quandrella…</source>
        <translation>Envoyer les factures à quandrella…</translation>
    </message>
    <message>
        <source>Open E-Invoice…</source>
        <translation>Ouvrir une facture électronique…</translation>
    </message>
    <message>
        <source>Received E-Invoice</source>
        <translation>Facture électronique reçue</translation>
    </message>
    <message>
        <source>Import Bank Statement…</source>
        <translation>Importer un relevé bancaire…</translation>
    </message>
</context>
<context>
    <name>tabo::FilterButton</name>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>One Invoice</source>
        <translation>Une facture</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtre : %1</translation>
    </message>
    <message>
        <source>A filter is on — click to show all documents</source>
        <translation>Un filtre est actif — cliquez pour afficher tous les documents</translation>
    </message>
    <message>
        <source>Filter the documents</source>
        <translation>Filtrer les documents</translation>
    </message>
</context>
<context>
    <name>tabo::FilterPopover</name>
    <message>
        <source>All documents</source>
        <translation>Tous les documents</translation>
    </message>
    <message>
        <source>Sent and open</source>
        <translation>Envoyées et ouvertes</translation>
    </message>
    <message>
        <source>Overdue and partly paid</source>
        <translation>En retard et partiellement payées</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Payée</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Devis</translation>
    </message>
    <message>
        <source>Last 12 hours</source>
        <translation>Dernières 12 heures</translation>
    </message>
    <message>
        <source>Last 3.5 days</source>
        <translation>Derniers 3,5 jours</translation>
    </message>
    <message>
        <source>Last 15.5 days</source>
        <translation>Derniers 15,5 jours</translation>
    </message>
    <message>
        <source>Last 182.5 days</source>
        <translation>Derniers 182,5 jours</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
</context>
<context>
    <name>tabo::FirstStartAssistant</name>
    <message>
        <source>Welcome to Tabo</source>
        <translation>Bienvenue dans Tabo</translation>
    </message>
    <message>
        <source>Language of your documents</source>
        <translation>Langue de vos documents</translation>
    </message>
    <message>
        <source>Tabo fills in labels, texts, number patterns, taxes and paper size for the language you write your invoices in. You can change every one of them later.</source>
        <translation>Tabo remplit les libellés, textes, modèles de numéros, taxes et format du papier pour la langue de vos factures. Vous pourrez tout modifier ensuite.</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Anglais</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Allemand</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Espagnol</translation>
    </message>
    <message>
        <source>Documents in:</source>
        <translation>Documents en :</translation>
    </message>
    <message>
        <source>Calculate totals to the cent for each VAT rate</source>
        <translation>Calculer les totaux au centime près pour chaque taux de TVA</translation>
    </message>
    <message>
        <source>Your company</source>
        <translation>Votre entreprise</translation>
    </message>
    <message>
        <source>These details head every document you send.</source>
        <translation>Ces informations figurent en tête de chaque document que vous envoyez.</translation>
    </message>
    <message>
        <source>Company name:</source>
        <translation>Nom de l’entreprise :</translation>
    </message>
    <message>
        <source>Slogan:</source>
        <translation>Slogan :</translation>
    </message>
    <message>
        <source>Street:</source>
        <translation>Rue :</translation>
    </message>
    <message>
        <source>Postcode:</source>
        <translation>Code postal :</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ville :</translation>
    </message>
    <message>
        <source>Country code:</source>
        <translation>Code pays :</translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation>Téléphone :</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-mail :</translation>
    </message>
    <message>
        <source>Taxes and bank</source>
        <translation>Taxes et banque</translation>
    </message>
    <message>
        <source>Invoices must name your tax number or VAT ID, and your customers need your bank details to pay. They go into the footer of every document; leave out what you do not have.</source>
        <translation>Les factures doivent indiquer votre numéro fiscal ou de TVA, et vos clients ont besoin de vos coordonnées bancaires pour payer. Ils figurent dans le pied de page de chaque document ; omettez ce que vous n’avez pas.</translation>
    </message>
    <message>
        <source>VAT ID:</source>
        <translation>N° TVA :</translation>
    </message>
    <message>
        <source>Tax number:</source>
        <translation>Numéro fiscal :</translation>
    </message>
    <message>
        <source>Bank:</source>
        <translation>Banque :</translation>
    </message>
    <message>
        <source>IBAN:</source>
        <translation>IBAN :</translation>
    </message>
    <message>
        <source>BIC:</source>
        <translation>BIC :</translation>
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
        <translation>Nouvel article</translation>
    </message>
    <message>
        <source>Catalogue</source>
        <translation>Catalogue</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titre :</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Description :</translation>
    </message>
    <message>
        <source>Code:</source>
        <translation>Code :</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation>Unité :</translation>
    </message>
    <message>
        <source>Article number:</source>
        <translation>Référence :</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Note :</translation>
    </message>
    <message>
        <source>Unit price:</source>
        <translation>Prix unitaire :</translation>
    </message>
    <message>
        <source>Quantity:</source>
        <translation>Quantité :</translation>
    </message>
    <message>
        <source>Taxes:</source>
        <translation>Taxes :</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Article number</source>
        <translation>Référence</translation>
    </message>
    <message>
        <source>Unit price</source>
        <translation>Prix unitaire</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Utiliser</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Taxe %1</translation>
    </message>
    <message>
        <source>The item could not be added.</source>
        <translation>L’article n’a pas pu être ajouté.</translation>
    </message>
</context>
<context>
    <name>tabo::ItemTableModel</name>
    <message>
        <source>Item</source>
        <translation>Article</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation>Prix unitaire</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Taxes</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Montant</translation>
    </message>
</context>
<context>
    <name>tabo::ItemsPage</name>
    <message>
        <source>Add Item…</source>
        <translation>Ajouter un article…</translation>
    </message>
    <message>
        <source>Delete Item</source>
        <translation>Supprimer l’article</translation>
    </message>
    <message>
        <source>Shipping…</source>
        <translation>Expédition…</translation>
    </message>
    <message>
        <source>Discount…</source>
        <translation>Remise…</translation>
    </message>
    <message>
        <source>Templates…</source>
        <translation>Modèles…</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Articles</translation>
    </message>
</context>
<context>
    <name>tabo::LetterSheet</name>
    <message>
        <source>Title:</source>
        <translation>Titre :</translation>
    </message>
    <message>
        <source>Conditions:</source>
        <translation>Conditions :</translation>
    </message>
    <message>
        <source>Miscellaneous:</source>
        <translation>Divers :</translation>
    </message>
    <message>
        <source>Footer:</source>
        <translation>Pied de page :</translation>
    </message>
    <message>
        <source>Generate</source>
        <translation>Générer</translation>
    </message>
    <message>
        <source>Payment Reminder</source>
        <translation>Relance de paiement</translation>
    </message>
    <message>
        <source>Delivery Slip</source>
        <translation>Bon de livraison</translation>
    </message>
</context>
<context>
    <name>tabo::LogoWell</name>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Drop an image here</source>
        <translation>Déposez une image ici</translation>
    </message>
    <message>
        <source>The stored logo cannot be read</source>
        <translation>Le logo enregistré ne peut pas être lu</translation>
    </message>
    <message>
        <source>“%1” is larger than 10 MB; please use a smaller image.</source>
        <translation>“%1” dépasse 10 Mo ; veuillez utiliser une image plus petite.</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>“%1” ne peut pas être lu.</translation>
    </message>
    <message>
        <source>“%1” is not an image Tabo can read (PNG, JPEG, GIF, BMP or TIFF).</source>
        <translation>“%1” n’est pas une image que Tabo sait lire (PNG, JPEG, GIF, BMP ou TIFF).</translation>
    </message>
    <message>
        <source>Choose Logo Image</source>
        <translation>Choisir l’image du logo</translation>
    </message>
</context>
<context>
    <name>tabo::MainWindow</name>
    <message>
        <source>New Invoice</source>
        <translation>Nouvelle facture</translation>
    </message>
    <message>
        <source>New Quote</source>
        <translation>Nouveau devis</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Préférences…</translation>
    </message>
    <message>
        <source>&amp;Documents</source>
        <translation>&amp;Documents</translation>
    </message>
    <message>
        <source>&amp;Items</source>
        <translation>&amp;Articles</translation>
    </message>
    <message>
        <source>&amp;Reports</source>
        <translation>&amp;Rapports</translation>
    </message>
    <message>
        <source>Report…</source>
        <translation>Rapport…</translation>
    </message>
    <message>
        <source>Print Account Book…</source>
        <translation>Imprimer le livre de comptes…</translation>
    </message>
    <message>
        <source>Catalogue…</source>
        <translation>Catalogue…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimer…</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Enregistrer en PDF…</translation>
    </message>
    <message>
        <source>E-mail…</source>
        <translation>E-mail…</translation>
    </message>
    <message>
        <source>Reminder…</source>
        <translation>Relance…</translation>
    </message>
    <message>
        <source>Delivery Slip…</source>
        <translation>Bon de livraison…</translation>
    </message>
    <message>
        <source>Choose Design…</source>
        <translation>Choisir le design…</translation>
    </message>
    <message>
        <source>&amp;Output</source>
        <translation>&amp;Sortie</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>Search number, client, subject, amount</source>
        <translation>Rechercher numéro, client, objet, montant</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Remind Me…</source>
        <translation>Me le rappeler…</translation>
    </message>
    <message>
        <source>Schedule a desktop notification about this invoice</source>
        <translation>Planifier une notification du bureau pour cette facture</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>Guide de l’utilisateur</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>About Tabo</source>
        <translation>À propos de Tabo</translation>
    </message>
    <message>
        <source>Repeat Invoice…</source>
        <translation>Répéter la facture…</translation>
    </message>
</context>
<context>
    <name>tabo::NotificationSheet</name>
    <message>
        <source>Remind Me</source>
        <translation>Me le rappeler</translation>
    </message>
    <message>
        <source>A desktop notification reminds you of this invoice.</source>
        <translation>Une notification du bureau vous rappelle cette facture.</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titre :</translation>
    </message>
    <message>
        <source>Subtitle:</source>
        <translation>Sous-titre :</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Texte :</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Date :</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Planifier</translation>
    </message>
</context>
<context>
    <name>tabo::PageRenderer</name>
    <message>
        <source>FAIL! YOUR SELECTED DESIGN IS EITHER BROKEN, CORRUPTED, OR DAMAGED! YOU NEED TO FIX THIS!</source>
        <translation>ÉCHEC ! LE DESIGN CHOISI EST CASSÉ, CORROMPU OU ENDOMMAGÉ ! VOUS DEVEZ LE RÉPARER !</translation>
    </message>
</context>
<context>
    <name>tabo::PaymentReviewWindow</name>
    <message>
        <source>Sure</source>
        <translation>Sûr</translation>
    </message>
    <message>
        <source>Proposed</source>
        <translation>Proposé</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>À choisir</translation>
    </message>
    <message>
        <source>Taken in before</source>
        <translation>Déjà pris en compte</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>Aucun rapprochement</translation>
    </message>
    <message>
        <source>Bank Statement</source>
        <translation>Relevé bancaire</translation>
    </message>
    <message>
        <source>Credits on the statement</source>
        <translation>Crédits du relevé</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Prendre</translation>
    </message>
    <message>
        <source>Booked</source>
        <translation>Comptabilisé</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Montant</translation>
    </message>
    <message>
        <source>Payer</source>
        <translation>Payeur</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Facture</translation>
    </message>
    <message>
        <source>Match</source>
        <translation>Rapprochement</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>Pourquoi</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>%1 of %2 credits (%3) will be taken in; the rest is skipped.</source>
        <translation>%1 crédits sur %2 (%3) seront pris en compte ; le reste est ignoré.</translation>
    </message>
    <message>
        <source>The bank statement cannot be read</source>
        <translation>Le relevé bancaire ne peut pas être lu</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Columns of the Statement</source>
        <translation>Colonnes du relevé</translation>
    </message>
    <message>
        <source>Booking date:</source>
        <translation>Date de comptabilisation :</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>Montant :</translation>
    </message>
    <message>
        <source>Payer:</source>
        <translation>Payeur :</translation>
    </message>
    <message>
        <source>IBAN:</source>
        <translation>IBAN :</translation>
    </message>
    <message>
        <source>Remittance text:</source>
        <translation>Libellé du virement :</translation>
    </message>
    <message>
        <source>Currency:</source>
        <translation>Devise :</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(aucune)</translation>
    </message>
    <message>
        <source>Tabo does not know the headings of this file. Say once which column holds what; files laid out like it are read so from now on.</source>
        <translation>Tabo ne connaît pas les en-têtes de ce fichier. Indiquez une fois quelle colonne contient quoi ; les fichiers de même présentation seront désormais lus ainsi.</translation>
    </message>
</context>
<context>
    <name>tabo::PdfPane</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>tabo::PrefsBinder</name>
    <message>
        <source>The stored value stays.</source>
        <translation>La valeur enregistrée reste.</translation>
    </message>
    <message>
        <source>%1 must be a whole number.</source>
        <translation>%1 doit être un nombre entier.</translation>
    </message>
    <message>
        <source>%1 cannot be below %2.</source>
        <translation>%1 ne peut pas être inférieur à %2.</translation>
    </message>
    <message>
        <source>%1 cannot be above %2.</source>
        <translation>%1 ne peut pas dépasser %2.</translation>
    </message>
    <message>
        <source>The rate must be a number, such as 19 or 7.5.</source>
        <translation>Le taux doit être un nombre, comme 19 ou 7,5.</translation>
    </message>
    <message>
        <source>The rate cannot be below 0 %.</source>
        <translation>Le taux ne peut pas être inférieur à 0 %.</translation>
    </message>
    <message>
        <source>The rate cannot be above 1000 %.</source>
        <translation>Le taux ne peut pas dépasser 1000 %.</translation>
    </message>
</context>
<context>
    <name>tabo::PreviewWindow</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimer…</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Enregistrer en PDF…</translation>
    </message>
    <message>
        <source>E-mail…</source>
        <translation>E-mail…</translation>
    </message>
    <message>
        <source>Reminder…</source>
        <translation>Relance…</translation>
    </message>
    <message>
        <source>Delivery Slip…</source>
        <translation>Bon de livraison…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Preparing the preview…</source>
        <translation>Préparation de l’aperçu…</translation>
    </message>
    <message>
        <source>No design available</source>
        <translation>Aucun design disponible</translation>
    </message>
    <message>
        <source>A document is printed through a design, and the design library is empty.

Add a design or import a design file in the Design pane of the preferences, or reinstall the built-in designs here.</source>
        <translation>Un document s’imprime au moyen d’un design, et la bibliothèque de designs est vide.

Ajoutez un design ou importez un fichier de design dans la section Design des préférences, ou réinstallez ici les designs fournis.</translation>
    </message>
    <message>
        <source>Reinstall Built-in Designs</source>
        <translation>Réinstaller les designs fournis</translation>
    </message>
</context>
<context>
    <name>tabo::QVPreferencePanel</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Company name:</source>
        <translation>Nom de l’entreprise :</translation>
    </message>
    <message>
        <source>Slogan:</source>
        <translation>Slogan :</translation>
    </message>
    <message>
        <source>Contact:</source>
        <translation>Contact :</translation>
    </message>
    <message>
        <source>Letterbox line:</source>
        <translation>Ligne d’expéditeur :</translation>
    </message>
    <message>
        <source>The sender line above the address, read through a window envelope.</source>
        <translation>La ligne d’expéditeur au-dessus de l’adresse, lisible dans une enveloppe à fenêtre.</translation>
    </message>
    <message>
        <source>Logo:</source>
        <translation>Logo :</translation>
    </message>
    <message>
        <source>Currency sign:</source>
        <translation>Symbole monétaire :</translation>
    </message>
    <message>
        <source>Address, taxes and bank (for footers and e-invoices)</source>
        <translation>Adresse, taxes et banque (pour les pieds de page et les factures électroniques)</translation>
    </message>
    <message>
        <source>Street:</source>
        <translation>Rue :</translation>
    </message>
    <message>
        <source>Postcode:</source>
        <translation>Code postal :</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ville :</translation>
    </message>
    <message>
        <source>Country code:</source>
        <translation>Code pays :</translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation>Téléphone :</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-mail :</translation>
    </message>
    <message>
        <source>VAT ID:</source>
        <translation>N° TVA :</translation>
    </message>
    <message>
        <source>Tax number:</source>
        <translation>Numéro fiscal :</translation>
    </message>
    <message>
        <source>Bank:</source>
        <translation>Banque :</translation>
    </message>
    <message>
        <source>IBAN:</source>
        <translation>IBAN :</translation>
    </message>
    <message>
        <source>BIC:</source>
        <translation>BIC :</translation>
    </message>
    <message>
        <source>Contact person:</source>
        <translation>Interlocuteur :</translation>
    </message>
    <message>
        <source>E-invoice address:</source>
        <translation>Adresse de facturation électronique :</translation>
    </message>
    <message>
        <source>Currency code:</source>
        <translation>Code de devise :</translation>
    </message>
    <message>
        <source>Compose Footers…</source>
        <translation>Composer les pieds de page…</translation>
    </message>
    <message>
        <source>Pattern:</source>
        <translation>Modèle :</translation>
    </message>
    <message>
        <source>Counter:</source>
        <translation>Compteur :</translation>
    </message>
    <message>
        <source>The counter</source>
        <translation>Le compteur</translation>
    </message>
    <message>
        <source>New documents get a number</source>
        <translation>Les nouveaux documents reçoivent un numéro</translation>
    </message>
    <message>
        <source>Days:</source>
        <translation>Jours :</translation>
    </message>
    <message>
        <source>The number of days</source>
        <translation>Le nombre de jours</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Factures</translation>
    </message>
    <message>
        <source>New invoices get a due date</source>
        <translation>Les nouvelles factures reçoivent une échéance</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Devis</translation>
    </message>
    <message>
        <source>New quotes get a validity date</source>
        <translation>Les nouveaux devis reçoivent une date de validité</translation>
    </message>
    <message>
        <source>Patterns take %COUNT%, %YEAR%, %MONTH% and %DAY%.</source>
        <translation>Les modèles acceptent %COUNT%, %YEAR%, %MONTH% et %DAY%.</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Printing or mailing marks an invoice as sent</source>
        <translation>Imprimer ou envoyer marque une facture comme envoyée</translation>
    </message>
    <message>
        <source>Print:</source>
        <translation>Impression :</translation>
    </message>
    <message>
        <source>At once, on the default printer</source>
        <translation>Immédiatement, sur l’imprimante par défaut</translation>
    </message>
    <message>
        <source>After the print dialog</source>
        <translation>Après la boîte de dialogue d’impression</translation>
    </message>
    <message>
        <source>Export documents as:</source>
        <translation>Exporter les documents en :</translation>
    </message>
    <message>
        <source>Tabo document</source>
        <translation>Document Tabo</translation>
    </message>
    <message>
        <source>XML</source>
        <translation>XML</translation>
    </message>
    <message>
        <source>Sort lines by:</source>
        <translation>Trier les lignes par :</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Order of entry</source>
        <translation>Ordre de saisie</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Les plus récents d’abord</translation>
    </message>
    <message>
        <source>Highest amount</source>
        <translation>Montant le plus élevé</translation>
    </message>
    <message>
        <source>Rate (%)</source>
        <translation>Taux (%)</translation>
    </message>
    <message>
        <source>Standard rate</source>
        <translation>Taux normal</translation>
    </message>
    <message>
        <source>Zero rated</source>
        <translation>Taux zéro</translation>
    </message>
    <message>
        <source>Exempt</source>
        <translation>Exonéré</translation>
    </message>
    <message>
        <source>Reverse charge</source>
        <translation>Autoliquidation</translation>
    </message>
    <message>
        <source>Intra-community supply</source>
        <translation>Livraison intracommunautaire</translation>
    </message>
    <message>
        <source>Export outside the EU</source>
        <translation>Exportation hors UE</translation>
    </message>
    <message>
        <source>Not subject to VAT</source>
        <translation>Non soumis à la TVA</translation>
    </message>
    <message>
        <source>E-invoice category</source>
        <translation>Catégorie de facture électronique</translation>
    </message>
    <message>
        <source>Reason when not charged</source>
        <translation>Motif en l’absence de taxe</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Taxe %1</translation>
    </message>
    <message>
        <source>Compound</source>
        <translation>Composée</translation>
    </message>
    <message>
        <source>e.g. Steuerschuldnerschaft des Leistungsempfängers</source>
        <translation>p. ex. Autoliquidation</translation>
    </message>
    <message>
        <source>A compound tax is computed on the net amount plus the taxes before it.</source>
        <translation>Une taxe composée est calculée sur le montant net augmenté des taxes précédentes.</translation>
    </message>
    <message>
        <source>Calculate new documents to the cent (EN 16931)</source>
        <translation>Calculer les nouveaux documents au centime près (EN 16931)</translation>
    </message>
    <message>
        <source>Each line is rounded to the cent and each rate&apos;s VAT is taken after the discount. Compound taxes and lines with two taxes are calculated the classic way. Existing documents keep their figures.</source>
        <translation>Chaque ligne est arrondie au centime et la TVA de chaque taux est calculée après la remise. Les taxes composées et les lignes à deux taxes sont calculées de façon classique. Les documents existants gardent leurs montants.</translation>
    </message>
    <message>
        <source>Take the discount before taxes (classic calculation)</source>
        <translation>Appliquer la remise avant les taxes (calcul classique)</translation>
    </message>
    <message>
        <source>Show each line&apos;s tax amounts</source>
        <translation>Afficher les montants de taxe de chaque ligne</translation>
    </message>
    <message>
        <source>Show each line&apos;s amount before tax</source>
        <translation>Afficher le montant HT de chaque ligne</translation>
    </message>
    <message>
        <source>Conditions:</source>
        <translation>Conditions :</translation>
    </message>
    <message>
        <source>Footer:</source>
        <translation>Pied de page :</translation>
    </message>
    <message>
        <source>Free text:</source>
        <translation>Texte libre :</translation>
    </message>
    <message>
        <source>E-mail text:</source>
        <translation>Texte de l’e-mail :</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>These texts are copied into new documents and may hold HTML.</source>
        <translation>Ces textes sont copiés dans les nouveaux documents et peuvent contenir du HTML.</translation>
    </message>
    <message>
        <source>Paper and rows</source>
        <translation>Papier et lignes</translation>
    </message>
    <message>
        <source>Paper size:</source>
        <translation>Format du papier :</translation>
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
        <translation>Imprimer et écrire les PDF sans marges</translation>
    </message>
    <message>
        <source>Show article numbers on rows</source>
        <translation>Afficher les références sur les lignes</translation>
    </message>
    <message>
        <source>Account book font:</source>
        <translation>Police du livre de comptes :</translation>
    </message>
    <message>
        <source>Number the account book&apos;s pages</source>
        <translation>Numéroter les pages du livre de comptes</translation>
    </message>
    <message>
        <source>Print the account book with details</source>
        <translation>Imprimer le livre de comptes avec détails</translation>
    </message>
    <message>
        <source>“%1” is no region; use a name such as de_DE or fr_FR.</source>
        <translation>“%1” n’est pas une région ; utilisez un nom comme de_DE ou fr_FR.</translation>
    </message>
    <message>
        <source>Documents&apos; region:</source>
        <translation>Région des documents :</translation>
    </message>
    <message>
        <source>Numbers, amounts and month names on documents follow this region.</source>
        <translation>Les nombres, montants et noms de mois des documents suivent cette région.</translation>
    </message>
    <message>
        <source>Date pattern:</source>
        <translation>Modèle de date :</translation>
    </message>
    <message>
        <source>Today:</source>
        <translation>Aujourd’hui :</translation>
    </message>
    <message>
        <source>Address pattern:</source>
        <translation>Modèle d’adresse :</translation>
    </message>
    <message>
        <source>Words printed on documents</source>
        <translation>Mots imprimés sur les documents</translation>
    </message>
    <message>
        <source>SKU number</source>
        <translation>Référence</translation>
    </message>
    <message>
        <source>Net amounts</source>
        <translation>Montants HT</translation>
    </message>
    <message>
        <source>Line totals</source>
        <translation>Totaux des lignes</translation>
    </message>
    <message>
        <source>VAT ID</source>
        <translation>N° TVA</translation>
    </message>
    <message>
        <source>Install Language Defaults…</source>
        <translation>Installer les réglages de langue…</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Anglais</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Allemand</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Espagnol</translation>
    </message>
    <message>
        <source>Install Language Defaults</source>
        <translation>Installer les réglages de langue</translation>
    </message>
    <message>
        <source>Language of the documents&apos; words and texts:</source>
        <translation>Langue des mots et textes des documents :</translation>
    </message>
    <message>
        <source>Client number pattern:</source>
        <translation>Modèle du numéro client :</translation>
    </message>
    <message>
        <source>Name in the salutation:</source>
        <translation>Nom dans la formule d’appel :</translation>
    </message>
    <message>
        <source>Last name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>First and last name</source>
        <translation>Prénom et nom</translation>
    </message>
    <message>
        <source>Title and last name</source>
        <translation>Civilité et nom</translation>
    </message>
    <message>
        <source>Title and first name</source>
        <translation>Civilité et prénom</translation>
    </message>
    <message>
        <source>Title, first and last name</source>
        <translation>Civilité, prénom et nom</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Choose Contacts File</source>
        <translation>Choisir le fichier de contacts</translation>
    </message>
    <message>
        <source>Contacts (vCard file):</source>
        <translation>Contacts (fichier vCard) :</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Base de données</translation>
    </message>
    <message>
        <source>Keep the database in a folder of my choice</source>
        <translation>Garder la base de données dans un dossier de mon choix</translation>
    </message>
    <message>
        <source>Stored in:</source>
        <translation>Enregistrée dans :</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sauvegardes</translation>
    </message>
    <message>
        <source>The automatic backup is kept in %1</source>
        <translation>La sauvegarde automatique se trouve dans %1</translation>
    </message>
    <message>
        <source>Show Automatic Backup</source>
        <translation>Afficher la sauvegarde automatique</translation>
    </message>
    <message>
        <source>Reminders While Tabo Is Closed</source>
        <translation>Rappels pendant que Tabo est fermé</translation>
    </message>
    <message>
        <source>A timer of your desktop session shows due reminders every hour (%1).</source>
        <translation>Un minuteur de votre session de bureau affiche les rappels échus toutes les heures (%1).</translation>
    </message>
    <message>
        <source>Reminders arrive only while Tabo is open.</source>
        <translation>Les rappels n’arrivent que lorsque Tabo est ouvert.</translation>
    </message>
    <message>
        <source>Remove Timer</source>
        <translation>Retirer le minuteur</translation>
    </message>
    <message>
        <source>Install Timer</source>
        <translation>Installer le minuteur</translation>
    </message>
</context>
<context>
    <name>tabo::ReportWindow</name>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Only invoices dated from</source>
        <translation>Seulement les factures datées du</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Enregistrer en PDF…</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimer…</translation>
    </message>
    <message>
        <source>to</source>
        <translation>au</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Du :</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Au :</translation>
    </message>
</context>
<context>
    <name>tabo::ScheduleWindow</name>
    <message>
        <source>Repeated Invoices</source>
        <translation>Factures récurrentes</translation>
    </message>
    <message>
        <source>Repeat the current invoice</source>
        <translation>Répéter la facture actuelle</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>Intervalle</translation>
    </message>
    <message>
        <source>months</source>
        <translation>mois</translation>
    </message>
    <message>
        <source>quarters</source>
        <translation>trimestres</translation>
    </message>
    <message>
        <source>years</source>
        <translation>ans</translation>
    </message>
    <message>
        <source>weeks</source>
        <translation>semaines</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Jusqu’au</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Dernier jour</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>sans limite</translation>
    </message>
    <message>
        <source>E-mail each invoice when it is written (Tabo asks first)</source>
        <translation>Envoyer chaque facture par e-mail une fois établie (Tabo demande d’abord)</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Répéter</translation>
    </message>
    <message>
        <source>Invoice:</source>
        <translation>Facture :</translation>
    </message>
    <message>
        <source>Every:</source>
        <translation>Tous les :</translation>
    </message>
    <message>
        <source>First on:</source>
        <translation>Première le :</translation>
    </message>
    <message>
        <source>Number of invoices:</source>
        <translation>Nombre de factures :</translation>
    </message>
    <message>
        <source>Repeated invoices</source>
        <translation>Factures récurrentes</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Intervalle</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Prochaine</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Établies</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Suspendre</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Select an invoice in the list to repeat it.</source>
        <translation>Sélectionnez une facture dans la liste pour la répéter.</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pause</translation>
    </message>
    <message>
        <source>ended</source>
        <translation>terminée</translation>
    </message>
</context>
<context>
    <name>tabo::ShippingPopover</name>
    <message>
        <source>Shipping</source>
        <translation>Expédition</translation>
    </message>
    <message>
        <source>Remembered</source>
        <translation>Mémorisé</translation>
    </message>
    <message>
        <source>Charge shipping on this document</source>
        <translation>Facturer l’expédition sur ce document</translation>
    </message>
    <message>
        <source>Show a second line:</source>
        <translation>Afficher une seconde ligne :</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titre :</translation>
    </message>
    <message>
        <source>Amount (net):</source>
        <translation>Montant (HT) :</translation>
    </message>
    <message>
        <source>Taxes:</source>
        <translation>Taxes :</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Note :</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Montant</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Utiliser</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Taxe %1</translation>
    </message>
    <message>
        <source>The shipping could not be changed.</source>
        <translation>L’expédition n’a pas pu être modifiée.</translation>
    </message>
    <message>
        <source>Second line</source>
        <translation>Seconde ligne</translation>
    </message>
</context>
<context>
    <name>tabo::ShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Raccourci</translation>
    </message>
</context>
<context>
    <name>tabo::SummaryBar</name>
    <message>
        <source>Invoices</source>
        <translation>Factures</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Devis</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Payée</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>Dû</translation>
    </message>
</context>
<context>
    <name>tabo::TemplatePopover</name>
    <message>
        <source>New Template</source>
        <translation>Nouveau modèle</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Modèles</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom :</translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation>Notes :</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>Heading and subject</source>
        <translation>Titre et objet</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Articles</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Expédition</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Remise</translation>
    </message>
    <message>
        <source>Include:</source>
        <translation>Inclure :</translation>
    </message>
    <message>
        <source>Save Template</source>
        <translation>Enregistrer le modèle</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Please give the template a name.</source>
        <translation>Veuillez donner un nom au modèle.</translation>
    </message>
    <message>
        <source>There is no document to save as a template.</source>
        <translation>Il n’y a pas de document à enregistrer comme modèle.</translation>
    </message>
    <message>
        <source>Delete Template</source>
        <translation>Supprimer le modèle</translation>
    </message>
    <message>
        <source>Deleting templates is permanent and cannot be undone. Do you really want to delete the template “%1”?</source>
        <translation>La suppression d’un modèle est définitive et ne peut pas être annulée. Voulez-vous vraiment supprimer le modèle “%1” ?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>tabo::TextsPage</name>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>Conditions</translation>
    </message>
    <message>
        <source>Footer</source>
        <translation>Pied de page</translation>
    </message>
    <message>
        <source>Extra text</source>
        <translation>Texte supplémentaire</translation>
    </message>
    <message>
        <source>Second extra text</source>
        <translation>Second texte supplémentaire</translation>
    </message>
</context>
<context>
    <name>tabo::TotalsPanel</name>
    <message>
        <source>Net</source>
        <translation>HT</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Expédition</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Remise</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Taxe %1</translation>
    </message>
</context>
<context>
    <name>tabo::UserGuideWindow</name>
    <message>
        <source>Tabo User Guide</source>
        <translation>Guide de l’utilisateur de Tabo</translation>
    </message>
    <message>
        <source>The user guide is not installed.</source>
        <translation>Le guide de l’utilisateur n’est pas installé.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>CloseButton</name>
    <message>
        <source>Close Tab</source>
        <translation>Reiter schließen</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Höher</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Niedriger</translation>
    </message>
</context>
<context>
    <name>QAccessibleActionInterface</name>
    <message>
        <source>Press</source>
        <translation>Drücken</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Erhöhen</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Verringern</translation>
    </message>
    <message>
        <source>ShowMenu</source>
        <translation>Menü zeigen</translation>
    </message>
    <message>
        <source>SetFocus</source>
        <translation>Eingabe hierher</translation>
    </message>
    <message>
        <source>Toggle</source>
        <translation>Umschalten</translation>
    </message>
    <message>
        <source>Scroll Left</source>
        <translation>Nach links rollen</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>Nach rechts rollen</translation>
    </message>
    <message>
        <source>Scroll Up</source>
        <translation>Nach oben rollen</translation>
    </message>
    <message>
        <source>Scroll Down</source>
        <translation>Nach unten rollen</translation>
    </message>
    <message>
        <source>Previous Page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Triggers the action</source>
        <translation>Löst die Aktion aus</translation>
    </message>
    <message>
        <source>Increase the value</source>
        <translation>Erhöht den Wert</translation>
    </message>
    <message>
        <source>Decrease the value</source>
        <translation>Verringert den Wert</translation>
    </message>
    <message>
        <source>Shows the menu</source>
        <translation>Zeigt das Menü</translation>
    </message>
    <message>
        <source>Sets the focus</source>
        <translation>Nimmt hier die Eingaben an</translation>
    </message>
    <message>
        <source>Toggles the state</source>
        <translation>Schaltet den Zustand um</translation>
    </message>
    <message>
        <source>Scrolls to the left</source>
        <translation>Rollt nach links</translation>
    </message>
    <message>
        <source>Scrolls to the right</source>
        <translation>Rollt nach rechts</translation>
    </message>
    <message>
        <source>Scrolls up</source>
        <translation>Rollt nach oben</translation>
    </message>
    <message>
        <source>Scrolls down</source>
        <translation>Rollt nach unten</translation>
    </message>
    <message>
        <source>Goes back a page</source>
        <translation>Geht eine Seite zurück</translation>
    </message>
    <message>
        <source>Goes to the next page</source>
        <translation>Geht zur nächsten Seite</translation>
    </message>
</context>
<context>
    <name>QComboBox</name>
    <message>
        <source>Open the combo box selection popup</source>
        <translation>Öffnet die Liste der Auswahl</translation>
    </message>
</context>
<context>
    <name>QDockWidget</name>
    <message>
        <source>Float</source>
        <translation>Herauslösen</translation>
    </message>
    <message>
        <source>Undocks and re-attaches the dock widget</source>
        <translation>Löst den Bereich heraus oder fügt ihn wieder ein</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Closes the dock widget</source>
        <translation>Schließt den Bereich</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Suchen in:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Datei&amp;name:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Dateityp:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Ordner:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>S&amp;peichern</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Auswählen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Übergeordneter Ordner</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Neuen Ordner anlegen</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1-Datei</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Ordner suchen</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>&amp;Verborgene Dateien zeigen</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Neuer Ordner</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Geht zurück</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Geht vorwärts</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Geht zum übergeordneten Ordner</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Legt einen neuen Ordner an</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Zeigt nur die Namen</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Zeigt auch Größe, Typ und Zeit</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Liste der Orte und Lesezeichen</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Zuletzt besucht</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 gibt es schon.
Soll die Datei ersetzt werden?</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Die Datei gibt es nicht.
Bitte prüfen Sie, ob der Name stimmt.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Den Ordner gibt es nicht.
Bitte prüfen Sie, ob der Name stimmt.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Soll „%1“ gelöscht werden?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>„%1“ ist schreibgeschützt.
Trotzdem löschen?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Der Ordner lässt sich nicht löschen.</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Zeige </translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Ungültiger Name</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;Der Name „%1“ ist nicht möglich.&lt;/b&gt;&lt;p&gt;Versuchen Sie einen anderen, mit weniger Zeichen oder ohne Satzzeichen.</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>Schließen ohne zu speichern</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>Einzelheiten zeigen...</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>Einzelheiten verbergen...</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Alles speichern</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>J&amp;a zu allem</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>N&amp;ein zu allem</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abbruch</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Nochmals versuchen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Übergehen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Vorgaben wiederherstellen</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Hierher rollen</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Linker Rand</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Rechter Rand</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Eine Seite nach links</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Eine Seite nach oben</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Eine Seite nach rechts</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Eine Seite nach unten</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Nach links rollen</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Nach oben rollen</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Nach rechts rollen</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Nach unten rollen</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>Bild ab</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Runter</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Meta</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>Num</source>
        <translation>Num</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Backtab</source>
        <translation>Umschalt+Tab</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Ins</source>
        <translation>Einfg</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>F%1</source>
        <translation>F%1</translation>
    </message>
</context>
<context>
    <name>QTabBar</name>
    <message>
        <source>Scroll Left</source>
        <translation>Nach links rollen</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>Nach rechts rollen</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Adresse des &amp;Links kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>Workbench</name>
    <message>
        <source>it is empty or too long</source>
        <translation>er ist leer oder zu lang</translation>
    </message>
    <message>
        <source>it has characters that no path may have</source>
        <translation>er enthält Zeichen, die in keinem Pfad stehen dürfen</translation>
    </message>
    <message>
        <source>it does not name a file below a folder</source>
        <translation>er bezeichnet keine Datei unterhalb eines Ordners</translation>
    </message>
    <message>
        <source>its &quot;error&quot; is no plain text</source>
        <translation>„error“ ist kein reiner Text</translation>
    </message>
    <message>
        <source>its &quot;text&quot; is no text</source>
        <translation>„text“ ist kein Text</translation>
    </message>
    <message>
        <source>its &quot;files&quot; are no list, or more than %1</source>
        <translation>„files“ ist keine Liste oder hat mehr als %1 Einträge</translation>
    </message>
    <message>
        <source>its &quot;differences&quot; are no list, or more than %1</source>
        <translation>„differences“ ist keine Liste oder hat mehr als %1 Einträge</translation>
    </message>
    <message>
        <source>its &quot;notes&quot; are no plain texts</source>
        <translation>„notes“ besteht nicht aus reinen Texten</translation>
    </message>
    <message>
        <source>%1 is no path below the output folder</source>
        <translation>%1 ist kein Pfad unterhalb des Ausgabeordners</translation>
    </message>
    <message>
        <source>what it says of %1 makes no sense</source>
        <translation>die Angaben zu %1 sind widersprüchlich</translation>
    </message>
    <message>
        <source>one of its differences is no plain text</source>
        <translation>einer der Unterschiede ist kein reiner Text</translation>
    </message>
    <message>
        <source>The plug-in folder does not exist.</source>
        <translation>Der Plug-in-Ordner existiert nicht.</translation>
    </message>
    <message>
        <source>Its IP &quot;%1&quot; is offered by &quot;%2&quot; already.</source>
        <translation>Seine IP „%1“ wird bereits von „%2“ angeboten.</translation>
    </message>
    <message>
        <source>There is no device yet: it comes with a project.</source>
        <translation>Es gibt noch keinen Baustein: Er kommt mit einem Projekt.</translation>
    </message>
    <message>
        <source>The plug-in failed when it was asked about the device: %1.</source>
        <translation>Das Plug-in ist bei der Frage nach dem Baustein gescheitert: %1.</translation>
    </message>
    <message>
        <source>%1 does not support the device %2.</source>
        <translation>%1 unterstützt den Baustein %2 nicht.</translation>
    </message>
    <message>
        <source>The plug-in of %1 failed: %2.</source>
        <translation>Das Plug-in von %1 ist gescheitert: %2.</translation>
    </message>
    <message>
        <source>The plug-in of %1 cannot move its IPs to other devices.</source>
        <translation>Das Plug-in von %1 kann seine IPs nicht auf andere Bausteine umstellen.</translation>
    </message>
    <message>
        <source>The plug-in of %1 hands on nothing.</source>
        <translation>Das Plug-in von %1 übergibt nichts.</translation>
    </message>
    <message>
        <source>The plug-in of %1 takes no programs.</source>
        <translation>Das Plug-in von %1 nimmt keine Programme an.</translation>
    </message>
    <message>
        <source>The plug-in of %1 cannot simulate.</source>
        <translation>Das Plug-in von %1 kann nicht simulieren.</translation>
    </message>
    <message>
        <source>The plug-in of %1 has no maps.</source>
        <translation>Das Plug-in von %1 hat keine Übersichten.</translation>
    </message>
    <message>
        <source>a door of %1 is no map with a place, a text and a document</source>
        <translation>eine Tür von %1 ist keine Angabe aus Ort, Text und Dokument</translation>
    </message>
    <message>
        <source>the &quot;headings&quot; of the door %1 are no texts of a line</source>
        <translation>„headings“ der Tür %1 besteht nicht aus einzeiligen Texten</translation>
    </message>
    <message>
        <source>the door %1 leads to the document %2: %3</source>
        <translation>die Tür %1 führt zum Dokument %2: %3</translation>
    </message>
    <message>
        <source>the door %1 is not in its picture</source>
        <translation>die Tür %1 liegt nicht in ihrem Bild</translation>
    </message>
    <message>
        <source>the doors %1 and %2 overlap</source>
        <translation>die Türen %1 und %2 überlappen sich</translation>
    </message>
    <message>
        <source>it is no drawing of up to %1 MiB</source>
        <translation>es ist keine Zeichnung von höchstens %1 MiB</translation>
    </message>
    <message>
        <source>one of its &quot;maps&quot; is no map with a title, a text and doors</source>
        <translation>ein Eintrag von „maps“ ist keine Angabe aus Titel, Text und Türen</translation>
    </message>
    <message>
        <source>the &quot;%1&quot; of %2 cannot be shown: %3</source>
        <translation>„%1“ von %2 kann nicht angezeigt werden: %3</translation>
    </message>
    <message>
        <source>the drawings of %1 differ in size</source>
        <translation>die Zeichnungen von %1 sind verschieden groß</translation>
    </message>
    <message>
        <source>%1 has more than %2 doors</source>
        <translation>%1 hat mehr als %2 Türen</translation>
    </message>
    <message>
        <source>its &quot;error&quot; is no text of a line</source>
        <translation>„error“ ist kein einzeiliger Text</translation>
    </message>
    <message>
        <source>its &quot;maps&quot; are no list of up to %1</source>
        <translation>„maps“ ist keine Liste mit höchstens %1 Einträgen</translation>
    </message>
    <message>
        <source>%1 has no maps that can be shown: %2</source>
        <translation>%1 hat keine Übersichten, die angezeigt werden können: %2</translation>
    </message>
    <message>
        <source>an exception without a text</source>
        <translation>eine Ausnahme ohne Text</translation>
    </message>
    <message>
        <source>an exception of an unknown type</source>
        <translation>eine Ausnahme unbekannten Typs</translation>
    </message>
    <message>
        <source>It failed while it was started: %1.</source>
        <translation>Es ist beim Start gescheitert: %1.</translation>
    </message>
    <message>
        <source>It is a Qt plug-in, but not one for IPs.</source>
        <translation>Es ist ein Qt-Plug-in, aber keines für IPs.</translation>
    </message>
    <message>
        <source>It is no plug-in: %1</source>
        <translation>Es ist kein Plug-in: %1</translation>
    </message>
    <message>
        <source>It offers no IP: it finds no usable descriptor in its data folder &quot;%1&quot;.</source>
        <translation>Es bietet keine IP an: Es findet in seinem Datenordner „%1“ keine brauchbare Beschreibungsdatei.</translation>
    </message>
    <message>
        <source>One of its IPs is no object.</source>
        <translation>Eine seiner IPs ist kein Objekt.</translation>
    </message>
    <message>
        <source>It offers one object twice.</source>
        <translation>Es bietet ein Objekt zweimal an.</translation>
    </message>
    <message>
        <source>It failed when it was asked for an IP: %1.</source>
        <translation>Es ist bei der Frage nach einer IP gescheitert: %1.</translation>
    </message>
    <message>
        <source>One of its IPs has no id or no name.</source>
        <translation>Eine seiner IPs hat keine Kennung oder keinen Namen.</translation>
    </message>
    <message>
        <source>its &quot;resources&quot; are no list of resources with numbers in their range</source>
        <translation>„resources“ ist keine Liste von Ressourcen mit Zahlen in ihrem Bereich</translation>
    </message>
    <message>
        <source>its &quot;pins&quot; are no numbers</source>
        <translation>„pins“ besteht nicht aus Zahlen</translation>
    </message>
    <message>
        <source>its &quot;blocks&quot; are no list of blocks with their shares</source>
        <translation>„blocks“ ist keine Liste von Blöcken mit ihren Anteilen</translation>
    </message>
    <message>
        <source>its &quot;blackBoxes&quot; are no list of cells with their number</source>
        <translation>„blackBoxes“ ist keine Liste von Zellen mit ihrer Anzahl</translation>
    </message>
    <message>
        <source>its &quot;program&quot; is no program with a full path</source>
        <translation>„program“ ist kein Programm mit vollständigem Pfad</translation>
    </message>
    <message>
        <source>its &quot;arguments&quot; are no list of texts</source>
        <translation>„arguments“ ist keine Liste von Texten</translation>
    </message>
    <message>
        <source>its &quot;file&quot; is no name of a file</source>
        <translation>„file“ ist kein Dateiname</translation>
    </message>
    <message>
        <source>its &quot;configuration&quot; is no text of a file</source>
        <translation>„configuration“ ist kein Text einer Datei</translation>
    </message>
    <message>
        <source>what it prints has no &quot;resources&quot;</source>
        <translation>die Ausgabe enthält kein „resources“</translation>
    </message>
    <message>
        <source>its &quot;resources&quot; are no list of resources with numbers</source>
        <translation>„resources“ ist keine Liste von Ressourcen mit Zahlen</translation>
    </message>
    <message>
        <source>its &quot;resources&quot; have one twice</source>
        <translation>„resources“ nennt eine Ressource zweimal</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 %2 of 0</source>
        <translation>%1 %2 von 0</translation>
    </message>
    <message>
        <source>%1 %2 of %3 (%4 %)</source>
        <translation>%1 %2 von %3 (%4 %)</translation>
    </message>
    <message>
        <source>may not fit</source>
        <translation>passt vielleicht nicht</translation>
    </message>
    <message>
        <source>does not fit: %1 too many</source>
        <translation>passt nicht: %1 zu viel</translation>
    </message>
    <message>
        <source>does not fit: about %1 too many</source>
        <translation>passt nicht: etwa %1 zu viel</translation>
    </message>
    <message>
        <source>between %1 and %2</source>
        <translation>zwischen %1 und %2</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>etwa %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Me&amp;ter</source>
        <translation>Be&amp;legung</translation>
    </message>
    <message>
        <source>&amp;Steps</source>
        <translation>&amp;Schritte</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>there are more than %1 of them</source>
        <translation>es sind mehr als %1</translation>
    </message>
    <message>
        <source>one of them has no &quot;name&quot; of a line: number %1</source>
        <translation>einer hat keinen einzeiligen „name“: Nummer %1</translation>
    </message>
    <message>
        <source>it is not a text file</source>
        <translation>sie ist keine Textdatei</translation>
    </message>
    <message>
        <source>Latin-1</source>
        <translation>Latin-1</translation>
    </message>
    <message>
        <source>UTF-8 with mark</source>
        <translation>UTF-8 mit Markierung</translation>
    </message>
    <message>
        <source>UTF-8</source>
        <translation>UTF-8</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>This line ends with %1, which is not how most lines of the file end.</source>
        <translation>Diese Zeile endet mit %1, anders als die meisten Zeilen der Datei.</translation>
    </message>
    <message>
        <source>Byte %1 of the character U+%2, which would not be seen.</source>
        <translation>Byte %1 des Zeichens U+%2, das nicht zu sehen wäre.</translation>
    </message>
    <message>
        <source>Byte %1, which is no UTF-8 here.</source>
        <translation>Byte %1, hier kein gültiges UTF-8.</translation>
    </message>
    <message>
        <source>another program is changing it</source>
        <translation>ein anderes Programm ändert sie gerade</translation>
    </message>
    <message>
        <source>Cannot change &quot;%1&quot;: %2.</source>
        <translation>„%1“ kann nicht geändert werden: %2.</translation>
    </message>
    <message>
        <source>for the unknown device %1</source>
        <translation>für den unbekannten Baustein %1</translation>
    </message>
    <message>
        <source>for %1; project: %2</source>
        <translation>für %1; Projekt: %2</translation>
    </message>
    <message>
        <source>This IP is made for the device &quot;%1&quot;, which the device database does not know.</source>
        <translation>Diese IP ist für den Baustein „%1“, den die Bausteindatenbank nicht kennt.</translation>
    </message>
    <message>
        <source>This IP is made for the device %1, and the project is for %2.</source>
        <translation>Diese IP ist für den Baustein %1, das Projekt für %2.</translation>
    </message>
    <message>
        <source>Project &quot;%1&quot;: %2.</source>
        <translation>Projekt „%1“: %2.</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>Zeile %1, Spalte %2: %3</translation>
    </message>
    <message>
        <source>it holds no JSON object</source>
        <translation>sie enthält kein JSON-Objekt</translation>
    </message>
    <message>
        <source>it has no format number (&quot;format&quot;), so it is no project</source>
        <translation>sie hat keine Formatnummer („format“) und ist daher kein Projekt</translation>
    </message>
    <message>
        <source>it was written by a newer version of this program (format %1; this program reads format %2)</source>
        <translation>sie stammt von einer neueren Version dieses Programms (Format %1; dieses Programm liest Format %2)</translation>
    </message>
    <message>
        <source>&quot;device&quot; is no text</source>
        <translation>„device“ ist kein Text</translation>
    </message>
    <message>
        <source>&quot;top&quot; is no text</source>
        <translation>„top“ ist kein Text</translation>
    </message>
    <message>
        <source>&quot;files&quot; is no list</source>
        <translation>„files“ ist keine Liste</translation>
    </message>
    <message>
        <source>&quot;files&quot; holds an entry that is no file name</source>
        <translation>„files“ enthält einen Eintrag, der kein Dateiname ist</translation>
    </message>
    <message>
        <source>The last results cannot be shown: &quot;%1&quot; %2.</source>
        <translation>Die letzten Ergebnisse können nicht angezeigt werden: „%1“ %2.</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation>ist zu groß</translation>
    </message>
    <message>
        <source>is no report of a run</source>
        <translation>ist kein Bericht eines Laufs</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already, and nothing in it is replaced.</source>
        <translation>„%1“ existiert bereits; darin wird nichts ersetzt.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be made.</source>
        <translation>Der Ordner „%1“ kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>a line of more than %1 bytes</source>
        <translation>eine Zeile mit mehr als %1 Bytes</translation>
    </message>
    <message>
        <source>its &quot;inputs&quot; are no list of kinds of files with names of their own</source>
        <translation>„inputs“ ist keine Liste von Dateiarten mit eigenen Namen</translation>
    </message>
    <message>
        <source>its &quot;engines&quot; are no list of simulators with names of their own</source>
        <translation>„engines“ ist keine Liste von Simulatoren mit eigenen Namen</translation>
    </message>
    <message>
        <source>it does not tell how waves are written</source>
        <translation>es sagt nicht, wie Wellenformen geschrieben werden</translation>
    </message>
    <message>
        <source>its numbers of UARTs, pins or clock cycles are none</source>
        <translation>die Zahlen der UARTs, Pins oder Takte sind keine</translation>
    </message>
    <message>
        <source>it has more than %1 examples</source>
        <translation>es hat mehr als %1 Beispiele</translation>
    </message>
    <message>
        <source>one of its examples is none that can be copied</source>
        <translation>eines der Beispiele kann nicht kopiert werden</translation>
    </message>
    <message>
        <source>No plug-in offers the IP of &quot;%1&quot;.</source>
        <translation>Kein Plug-in bietet die IP von „%1“ an.</translation>
    </message>
    <message>
        <source>What the plug-in of %1 answers cannot be used: %2.</source>
        <translation>Die Antwort des Plug-ins von %1 ist nicht brauchbar: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be started: %2.</source>
        <translation>„%1“ kann nicht gestartet werden: %2.</translation>
    </message>
    <message>
        <source>the program that simulates was ended by a signal</source>
        <translation>das simulierende Programm wurde durch ein Signal beendet</translation>
    </message>
    <message>
        <source>the program that simulates ended with status %1 and told nothing</source>
        <translation>das simulierende Programm endete mit Status %1, ohne etwas zu melden</translation>
    </message>
    <message>
        <source>1 clock cycle</source>
        <translation>1 Takt</translation>
    </message>
    <message>
        <source>%1 clock cycles</source>
        <translation>%1 Takte</translation>
    </message>
    <message>
        <source>Stopped before the program ran</source>
        <translation>Gestoppt, bevor das Programm lief</translation>
    </message>
    <message>
        <source>The program did not run</source>
        <translation>Das Programm lief nicht</translation>
    </message>
    <message>
        <source>Passed after %1</source>
        <translation>Bestanden, Dauer: %1</translation>
    </message>
    <message>
        <source>Ended by the time limit after %1</source>
        <translation>Durch die Zeitgrenze beendet, Dauer: %1</translation>
    </message>
    <message>
        <source>Stopped after %1</source>
        <translation>Gestoppt, Dauer: %1</translation>
    </message>
    <message>
        <source>Failed after %1</source>
        <translation>Fehlgeschlagen, Dauer: %1</translation>
    </message>
    <message>
        <source>%1 µs</source>
        <translation>%1 µs</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Wird gestoppt…</translation>
    </message>
    <message>
        <source>Compiling the program…</source>
        <translation>Programm wird kompiliert…</translation>
    </message>
    <message>
        <source>Building the simulation…</source>
        <translation>Simulation wird gebaut…</translation>
    </message>
    <message>
        <source>Running: %1</source>
        <translation>Läuft: %1</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>Wird gestartet…</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The document has more than %1 pages.</source>
        <translation>Das Dokument hat mehr als %1 Seiten.</translation>
    </message>
    <message>
        <source>The document cannot be put on paper.</source>
        <translation>Das Dokument kann nicht auf Seiten gesetzt werden.</translation>
    </message>
    <message>
        <source>fresh</source>
        <translation>aktuell</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>stale</source>
        <translation>veraltet</translation>
    </message>
    <message>
        <source>edited</source>
        <translation>bearbeitet</translation>
    </message>
    <message>
        <source>left over</source>
        <translation>übrig</translation>
    </message>
    <message>
        <source>left over, edited</source>
        <translation>übrig, bearbeitet</translation>
    </message>
    <message>
        <source>The folder holds it as it is made now.</source>
        <translation>Der Ordner enthält sie so, wie sie jetzt erzeugt wird.</translation>
    </message>
    <message>
        <source>It is not in the folder; an export writes it.</source>
        <translation>Sie ist nicht im Ordner; ein Export schreibt sie.</translation>
    </message>
    <message>
        <source>The folder holds what an earlier export has written; an export replaces it.</source>
        <translation>Der Ordner enthält den Stand eines früheren Exports; ein Export ersetzt ihn.</translation>
    </message>
    <message>
        <source>Somebody has changed it in the folder; an export writes it anew and keeps the changes in a file beside it.</source>
        <translation>Jemand hat sie im Ordner geändert; ein Export schreibt sie neu und bewahrt die Änderungen in einer Datei daneben auf.</translation>
    </message>
    <message>
        <source>An earlier export has written it; an export removes it.</source>
        <translation>Ein früherer Export hat sie geschrieben; ein Export entfernt sie.</translation>
    </message>
    <message>
        <source>An earlier export has written it and somebody has changed it; an export leaves it.</source>
        <translation>Ein früherer Export hat sie geschrieben, und jemand hat sie geändert; ein Export lässt sie stehen.</translation>
    </message>
    <message>
        <source>the file %1 is too large: a file may have %2 MiB, all of them together %3 MiB</source>
        <translation>die Datei %1 ist zu groß: Eine Datei darf %2 MiB haben, alle zusammen %3 MiB</translation>
    </message>
    <message>
        <source>its &quot;files&quot; are no list of files</source>
        <translation>„files“ ist keine Liste von Dateien</translation>
    </message>
    <message>
        <source>it makes more than %1 files</source>
        <translation>es erzeugt mehr als %1 Dateien</translation>
    </message>
    <message>
        <source>one of its files is no map with a path and bytes</source>
        <translation>eine der Dateien ist keine Angabe aus Pfad und Bytes</translation>
    </message>
    <message>
        <source>it does not name a file of the folder</source>
        <translation>er bezeichnet keine Datei des Ordners</translation>
    </message>
    <message>
        <source>it has a file with the path %1: %2</source>
        <translation>es hat eine Datei mit dem Pfad %1: %2</translation>
    </message>
    <message>
        <source>it has the file %1 twice</source>
        <translation>es hat die Datei %1 zweimal</translation>
    </message>
    <message>
        <source>its &quot;size&quot;, &quot;used&quot; and &quot;free&quot; are no numbers that agree</source>
        <translation>„size“, „used“ und „free“ sind keine Zahlen, die zusammenpassen</translation>
    </message>
    <message>
        <source>its &quot;warnings&quot; are no texts of a line</source>
        <translation>„warnings“ besteht nicht aus einzeiligen Texten</translation>
    </message>
    <message>
        <source>its &quot;folder&quot; is no full path</source>
        <translation>„folder“ ist kein vollständiger Pfad</translation>
    </message>
    <message>
        <source>its &quot;changed&quot; is neither true nor false</source>
        <translation>„changed“ ist weder true noch false</translation>
    </message>
    <message>
        <source>it offers more than %1 formats</source>
        <translation>es bietet mehr als %1 Formate an</translation>
    </message>
    <message>
        <source>one of its formats is no map</source>
        <translation>eines der Formate ist keine Angabe aus Schlüsseln und Werten</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of one of its formats is no text of a line</source>
        <translation>„%1“ eines der Formate ist kein einzeiliger Text</translation>
    </message>
    <message>
        <source>one of its formats has no name</source>
        <translation>eines der Formate hat keinen Namen</translation>
    </message>
    <message>
        <source>it offers the format %1 twice</source>
        <translation>es bietet das Format %1 zweimal an</translation>
    </message>
    <message>
        <source>its &quot;manifest&quot; is no name of a file</source>
        <translation>„manifest“ ist kein Dateiname</translation>
    </message>
    <message>
        <source>its &quot;files&quot; are no list</source>
        <translation>„files“ ist keine Liste</translation>
    </message>
    <message>
        <source>one of its files is no map with a path, a format and bytes</source>
        <translation>eine der Dateien ist keine Angabe aus Pfad, Format und Bytes</translation>
    </message>
    <message>
        <source>the file %1 is of the format %2, which it does not offer</source>
        <translation>die Datei %1 hat das Format %2, das nicht angeboten wird</translation>
    </message>
    <message>
        <source>%1 is a file and a folder of files</source>
        <translation>%1 ist zugleich eine Datei und ein Ordner mit Dateien</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>it has more than elements</source>
        <translation>es enthält anderes als Elemente</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>es ist zu groß</translation>
    </message>
    <message>
        <source>it holds the element &quot;%1&quot;</source>
        <translation>es enthält das Element „%1“</translation>
    </message>
    <message>
        <source>it is no drawing</source>
        <translation>es ist keine Zeichnung</translation>
    </message>
    <message>
        <source>This picture cannot be shown.</source>
        <translation>Dieses Bild kann nicht angezeigt werden.</translation>
    </message>
    <message>
        <source>its &quot;state&quot; is no plain text</source>
        <translation>„state“ ist kein reiner Text</translation>
    </message>
    <message>
        <source>its &quot;reasons&quot; are no plain texts</source>
        <translation>„reasons“ besteht nicht aus reinen Texten</translation>
    </message>
    <message>
        <source>%1 is no full path</source>
        <translation>%1 ist kein vollständiger Pfad</translation>
    </message>
    <message>
        <source>its &quot;watched&quot; are no full paths</source>
        <translation>„watched“ besteht nicht aus vollständigen Pfaden</translation>
    </message>
    <message>
        <source>The plug-in of %1 does not tell what is up to date.</source>
        <translation>Das Plug-in von %1 sagt nicht, was aktuell ist.</translation>
    </message>
    <message>
        <source>of how many is not known</source>
        <translation>Gesamtzahl nicht bekannt</translation>
    </message>
    <message>
        <source>between %1 and %2, of how many is not known</source>
        <translation>zwischen %1 und %2, Gesamtzahl nicht bekannt</translation>
    </message>
    <message>
        <source>The expression is wrong at character %1: %2.</source>
        <translation>Der Ausdruck ist bei Zeichen %1 fehlerhaft: %2.</translation>
    </message>
    <message>
        <source>The expression cannot be searched for as whole words: %1.</source>
        <translation>Nach dem Ausdruck kann nicht als ganzem Wort gesucht werden: %1.</translation>
    </message>
    <message>
        <source>The replacement names group %1; groups of the expression: %2.</source>
        <translation>Der Ersatz nennt die Gruppe %1; Gruppen des Ausdrucks: %2.</translation>
    </message>
    <message>
        <source>Not all of its files have been generated.</source>
        <translation>Nicht alle ihrer Dateien sind generiert.</translation>
    </message>
    <message>
        <source>Its generated files are out of date.</source>
        <translation>Ihre generierten Dateien sind veraltet.</translation>
    </message>
    <message>
        <source>Generated files were changed by hand.</source>
        <translation>Generierte Dateien wurden von Hand geändert.</translation>
    </message>
    <message>
        <source>Files that no generation is known to have made stand where its results belong.</source>
        <translation>Am Ort ihrer Ergebnisse liegen Dateien, die von keiner bekannten Generierung stammen.</translation>
    </message>
    <message>
        <source>It is newer than the files that were generated from it.</source>
        <translation>Sie ist neuer als die Dateien, die aus ihr generiert wurden.</translation>
    </message>
    <message>
        <source>The state of its generated files: %1.</source>
        <translation>Zustand ihrer generierten Dateien: %1.</translation>
    </message>
    <message>
        <source>&amp;Resources…</source>
        <translation>&amp;Ressourcen…</translation>
    </message>
    <message>
        <source>&amp;Cells…</source>
        <translation>&amp;Zellen…</translation>
    </message>
    <message>
        <source>&amp;Ports…</source>
        <translation>&amp;Ports…</translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; must end in .csv, .json or .md.</source>
        <translation>Der Name der Tabelle „%1“ muss auf .csv, .json oder .md enden.</translation>
    </message>
    <message>
        <source>No command is set for it.</source>
        <translation>Es ist kein Befehl für ihn eingestellt.</translation>
    </message>
    <message>
        <source>The program &quot;%1&quot; does not start.</source>
        <translation>Das Programm „%1“ startet nicht.</translation>
    </message>
    <message>
        <source>Cannot open the external editor. %1</source>
        <translation>Der externe Editor kann nicht geöffnet werden. %1</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>&amp;Schriftart:</translation>
    </message>
    <message>
        <source>Font si&amp;ze:</source>
        <translation>Schrift&amp;größe:</translation>
    </message>
    <message>
        <source>&amp;Tab width:</source>
        <translation>&amp;Tabulatorbreite:</translation>
    </message>
    <message>
        <source>Show line &amp;numbers</source>
        <translation>Zeilen&amp;nummern anzeigen</translation>
    </message>
    <message>
        <source>&amp;Wrap long lines</source>
        <translation>Lange Zeilen &amp;umbrechen</translation>
    </message>
    <message>
        <source>E&amp;xternal editor:</source>
        <translation>E&amp;xterner Editor:</translation>
    </message>
    <message>
        <source>&amp;Yosys:</source>
        <translation>&amp;Yosys:</translation>
    </message>
    <message>
        <source>&amp;Synplify Pro:</source>
        <translation>&amp;Synplify Pro:</translation>
    </message>
    <message>
        <source>&amp;Icarus Verilog, compiler:</source>
        <translation>&amp;Icarus Verilog, Compiler:</translation>
    </message>
    <message>
        <source>Icarus Verilog, &amp;run time:</source>
        <translation>Icarus Verilog, &amp;Laufzeitprogramm:</translation>
    </message>
    <message>
        <source>&amp;Verilator:</source>
        <translation>&amp;Verilator:</translation>
    </message>
    <message>
        <source>C co&amp;mpiler for Arm:</source>
        <translation>&amp;C-Compiler für Arm:</translation>
    </message>
    <message>
        <source>Viewer of &amp;waves:</source>
        <translation>&amp;Betrachter für Wellenformen:</translation>
    </message>
    <message>
        <source>&amp;Open at the start what was open at the end</source>
        <translation>Beim Start &amp;öffnen, was am Ende offen war</translation>
    </message>
    <message>
        <source>Run the &amp;synthesis in the background beside the dialog of an IP</source>
        <translation>Neben dem Dialog einer IP im Hintergrund die &amp;Synthese ausführen</translation>
    </message>
    <message>
        <source>Seconds &amp;without a change before it:</source>
        <translation>Sekunden ohne Änderung da&amp;vor:</translation>
    </message>
    <message>
        <source>Lan&amp;guage, from the next start on:</source>
        <translation>Sp&amp;rache, ab dem nächsten Start:</translation>
    </message>
    <message>
        <source>&amp;Editor</source>
        <translation>&amp;Editor</translation>
    </message>
    <message>
        <source>Too&amp;ls</source>
        <translation>&amp;Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;Program</source>
        <translation>&amp;Programm</translation>
    </message>
    <message>
        <source>That of the system</source>
        <translation>Die des Systems</translation>
    </message>
    <message>
        <source>This is not the whole path of a program.</source>
        <translation>Dies ist kein vollständiger Pfad eines Programms.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Diese Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>This is no file.</source>
        <translation>Dies ist keine Datei.</translation>
    </message>
    <message>
        <source>This file is no program: it may not be executed.</source>
        <translation>Diese Datei ist kein Programm: Sie darf nicht ausgeführt werden.</translation>
    </message>
    <message>
        <source>No program &quot;%1&quot; was found on PATH.</source>
        <translation>Auf dem PATH wurde kein Programm „%1“ gefunden.</translation>
    </message>
    <message>
        <source>Clear the text</source>
        <translation>Text löschen</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <translation>Der Ordner „%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>No program of the desktop shows the folder &quot;%1&quot;.</source>
        <translation>Kein Programm des Desktops zeigt den Ordner „%1“ an.</translation>
    </message>
    <message>
        <source>while it was loaded</source>
        <translation>beim Laden</translation>
    </message>
    <message>
        <source>while it was started</source>
        <translation>beim Starten</translation>
    </message>
    <message>
        <source>when it was asked for its IPs</source>
        <translation>bei der Frage nach seinen IPs</translation>
    </message>
    <message>
        <source>when it was asked what its IPs are</source>
        <translation>bei der Frage, was seine IPs sind</translation>
    </message>
    <message>
        <source>when it was asked about devices</source>
        <translation>bei der Frage nach Bausteinen</translation>
    </message>
    <message>
        <source>when its IPs were released</source>
        <translation>beim Freigeben seiner IPs</translation>
    </message>
    <message>
        <source>It did not stop printing %1.</source>
        <translation>Es gab %1 ohne Ende aus.</translation>
    </message>
    <message>
        <source>It did not answer within %1 s %2.</source>
        <translation>Es hat innerhalb von %1 s nicht geantwortet: %2.</translation>
    </message>
    <message>
        <source>It crashed %1 (signal %2).</source>
        <translation>Es ist %1 abgestürzt (Signal %2).</translation>
    </message>
    <message>
        <source>It ended the program %1 (status %2).</source>
        <translation>Es hat %1 das Programm beendet (Status %2).</translation>
    </message>
    <message>
        <source>plug-in mechanism, and everything on screen</source>
        <translation>Mechanismus der Plug-ins und alles auf dem Bildschirm</translation>
    </message>
    <message>
        <source>figures, diagram and pictures of documents</source>
        <translation>Abbildungen, Diagramm und Bilder der Dokumente</translation>
    </message>
    <message>
        <source>the editor&apos;s colours</source>
        <translation>Farben des Editors</translation>
    </message>
    <message>
        <source>arguments and help texts of the programs</source>
        <translation>Argumente und Hilfetexte der Programme</translation>
    </message>
    <message>
        <source>digests of files in the command line</source>
        <translation>Prüfsummen von Dateien in der Befehlszeile</translation>
    </message>
    <message>
        <source>C library, mathematics, dynamic loading</source>
        <translation>C-Bibliothek, Mathematik, dynamisches Laden</translation>
    </message>
    <message>
        <source>C++ library</source>
        <translation>C++-Bibliothek</translation>
    </message>
    <message>
        <source>the processor&apos;s instructions in simulation</source>
        <translation>Befehle des Prozessors in der Simulation</translation>
    </message>
    <message>
        <source>programs in ELF form for the simulated processor</source>
        <translation>Programme im ELF-Format für den simulierten Prozessor</translation>
    </message>
    <message>
        <source>stacks of simulated instructions that wait for the bus</source>
        <translation>Stapel simulierter Befehle, die auf den Bus warten</translation>
    </message>
    <message>
        <source>programs in ELF form in command line and plug-in</source>
        <translation>Programme im ELF-Format in Befehlszeile und Plug-in</translation>
    </message>
    <message>
        <source>lines of C of a program&apos;s addresses</source>
        <translation>C-Zeilen zu den Adressen eines Programms</translation>
    </message>
    <message>
        <source>synthesis and proofs</source>
        <translation>Synthese und Beweise</translation>
    </message>
    <message>
        <source>simulation; it loads the simulation component</source>
        <translation>Simulation; lädt den Bestandteil für Simulation</translation>
    </message>
    <message>
        <source>simulation of what it compiles</source>
        <translation>Simulation dessen, was es übersetzt</translation>
    </message>
    <message>
        <source>proofs of VHDL netlists</source>
        <translation>Beweise von VHDL-Netzlisten</translation>
    </message>
    <message>
        <source>jobs of a sweep, and building</source>
        <translation>Aufträge eines Sweeps und das Bauen</translation>
    </message>
    <message>
        <source>shows waves</source>
        <translation>zeigt Wellenformen</translation>
    </message>
    <message>
        <source>compiles programs for the simulated processor</source>
        <translation>übersetzt Programme für den simulierten Prozessor</translation>
    </message>
    <message>
        <source>C library of programs for the processor</source>
        <translation>C-Bibliothek von Programmen für den Prozessor</translation>
    </message>
    <message>
        <source>debugs programs in simulation; the user starts it</source>
        <translation>Fehlersuche in Programmen in der Simulation; der Benutzer startet es</translation>
    </message>
    <message>
        <source>Used %1.</source>
        <translation>Belegt: %1.</translation>
    </message>
    <message>
        <source>Not counted are the contents of black boxes: %1.</source>
        <translation>Nicht gezählt ist der Inhalt der Blackboxes: %1.</translation>
    </message>
    <message>
        <source>its lines are longer than can be drawn</source>
        <translation>ihre Linien sind länger, als sich zeichnen lässt</translation>
    </message>
</context>
<context>
    <name>Workbench::AboutDialog</name>
    <message>
        <source>About Tarvo Workbench</source>
        <translation>Über Tarvo Workbench</translation>
    </message>
    <message>
        <source>Tarvo Workbench %1</source>
        <translation>Tarvo Workbench %1</translation>
    </message>
    <message>
        <source>Configures and generates IPs for FPGA designs.</source>
        <translation>Konfiguriert und generiert IPs für FPGA-Entwürfe.</translation>
    </message>
    <message>
        <source>Qt %1 (built with %2), %3</source>
        <translation>Qt %1 (gebaut mit %2), %3</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Einstellungen: %1</translation>
    </message>
    <message>
        <source>IPs: none</source>
        <translation>IPs: keine</translation>
    </message>
    <message>
        <source>IP: %1</source>
        <translation>IP: %1</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>Komponenten</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>Komponente</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>For</source>
        <translation>Zweck</translation>
    </message>
    <message>
        <source>Debian package</source>
        <translation>Debian-Paket</translation>
    </message>
    <message>
        <source>&amp;Components and their licences:</source>
        <translation>&amp;Komponenten und ihre Lizenzen:</translation>
    </message>
    <message>
        <source>Co&amp;py All</source>
        <translation>&amp;Alles kopieren</translation>
    </message>
    <message>
        <source>Puts all of this on the clipboard as text, for a report</source>
        <translation>Legt dies alles als Text in die Zwischenablage, für einen Bericht</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>nicht gefunden</translation>
    </message>
    <message>
        <source>…</source>
        <translation>…</translation>
    </message>
    <message>
        <source>does not tell</source>
        <translation>keine Angabe</translation>
    </message>
    <message>
        <source>About the component</source>
        <translation>Über die Komponente</translation>
    </message>
</context>
<context>
    <name>Workbench::CatalogueModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
</context>
<context>
    <name>Workbench::CatalogueView</name>
    <message>
        <source>&amp;Create IP…</source>
        <translation>IP erze&amp;ugen…</translation>
    </message>
    <message>
        <source>Help on This IP</source>
        <translation>Hilfe zu dieser IP</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filter of the IP catalogue</source>
        <translation>Filter des IP-Katalogs</translation>
    </message>
    <message>
        <source>IP catalogue</source>
        <translation>IP-Katalog</translation>
    </message>
    <message>
        <source>No plug-in offers an IP. Tools &gt; Plug-ins says why.</source>
        <translation>Kein Plug-in bietet eine IP an. Extras &gt; Plug-ins nennt den Grund.</translation>
    </message>
    <message>
        <source>Select an IP to see what it is.</source>
        <translation>Wählen Sie eine IP aus, um zu sehen, was sie ist.</translation>
    </message>
    <message>
        <source>Create IP…</source>
        <translation>IP erzeugen…</translation>
    </message>
    <message>
        <source>About the selected IP</source>
        <translation>Über die ausgewählte IP</translation>
    </message>
</context>
<context>
    <name>Workbench::CellModel</name>
    <message>
        <source>No primitive: its contents are licensed separately and come later.</source>
        <translation>Kein Primitiv: Der Inhalt wird getrennt lizenziert und kommt später.</translation>
    </message>
    <message>
        <source>%1 (black box)</source>
        <translation>%1 (Blackbox)</translation>
    </message>
    <message>
        <source>Primitive</source>
        <translation>Primitiv</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Anzahl</translation>
    </message>
</context>
<context>
    <name>Workbench::Companion</name>
    <message>
        <source>Companion</source>
        <translation>Begleiter</translation>
    </message>
</context>
<context>
    <name>Workbench::CompanionDesk</name>
    <message>
        <source>&amp;Companion of IP Dialogs</source>
        <translation>&amp;Begleiter der IP-Dialoge</translation>
    </message>
    <message>
        <source>Shows beside the dialog of an IP what its configuration takes of the device</source>
        <translation>Zeigt neben dem Dialog einer IP, was ihre Konfiguration vom Baustein belegt</translation>
    </message>
</context>
<context>
    <name>Workbench::DeviceModel</name>
    <message>
        <source>Device</source>
        <translation>Baustein</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Serie</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Gehäuse</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Part number</source>
        <translation>Bestellnummer</translation>
    </message>
</context>
<context>
    <name>Workbench::DevicePicker</name>
    <message>
        <source>Filter, for example: 2kr qfn88p c8</source>
        <translation>Filter, zum Beispiel: 2kr qfn88p c8</translation>
    </message>
    <message>
        <source>Filter of the devices</source>
        <translation>Filter der Bausteine</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Bausteine</translation>
    </message>
    <message>
        <source>Copy &amp;Part Number</source>
        <translation>Bestellnummer &amp;kopieren</translation>
    </message>
    <message>
        <source>Copy Part Number</source>
        <translation>Bestellnummer kopieren</translation>
    </message>
    <message>
        <source>No device matches the filter.</source>
        <translation>Kein Baustein entspricht dem Filter.</translation>
    </message>
    <message>
        <source>%1 of %2 devices</source>
        <translation>%1 von %2 Bausteinen</translation>
    </message>
</context>
<context>
    <name>Workbench::DiagramRenderer</name>
    <message>
        <source>The picture &quot;%1&quot; must end in .svg, .png or .pdf.</source>
        <translation>Der Name des Bildes „%1“ muss auf .svg, .png oder .pdf enden.</translation>
    </message>
    <message>
        <source>The plug-in of &quot;%1&quot; wrote no picture.</source>
        <translation>Das Plug-in von „%1“ hat kein Bild geschrieben.</translation>
    </message>
    <message>
        <source>The dialog of &quot;%1&quot; did not open.</source>
        <translation>Der Dialog von „%1“ hat sich nicht geöffnet.</translation>
    </message>
    <message>
        <source>The dialog of this IP offers no diagram.</source>
        <translation>Der Dialog dieser IP bietet kein Diagramm an.</translation>
    </message>
    <message>
        <source>The plug-in failed when it was asked for the diagram: %1.</source>
        <translation>Das Plug-in ist bei der Frage nach dem Diagramm gescheitert: %1.</translation>
    </message>
    <message>
        <source>The diagram could not be written.</source>
        <translation>Das Diagramm konnte nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>Workbench::EditActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>A&amp;lles auswählen</translation>
    </message>
</context>
<context>
    <name>Workbench::EditorPage</name>
    <message>
        <source>Cannot show &quot;%1&quot;: %2.</source>
        <translation>„%1“ kann nicht angezeigt werden: %2.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>it is not a plain file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it has more than %1 MB</source>
        <translation>sie hat mehr als %1 MB</translation>
    </message>
    <message>
        <source>This file is large: it is being read, and is shown without colours.</source>
        <translation>Diese Datei ist groß: Sie wird noch gelesen und ohne Farben angezeigt.</translation>
    </message>
    <message>
        <source>This file cannot be changed: you have no permission to write it.</source>
        <translation>Diese Datei kann nicht geändert werden: Sie haben keine Schreibberechtigung.</translation>
    </message>
    <message>
        <source>This file is open for reading. Press Ctrl+E to edit it.</source>
        <translation>Diese Datei ist zum Lesen geöffnet. Mit Strg+E bearbeiten Sie sie.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not saved: its text is Latin-1, which has no &quot;%2&quot; (line %3).</source>
        <translation>„%1“ ist nicht gespeichert: Der Text ist Latin-1, das kein „%2“ hat (Zeile %3).</translation>
    </message>
    <message>
        <source>The program was ended with unsaved changes of this file. They are in &quot;%1&quot;.</source>
        <translation>Das Programm wurde mit ungesicherten Änderungen dieser Datei beendet. Sie stehen in „%1“.</translation>
    </message>
    <message>
        <source>&amp;Open Them</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Delete Them</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Cannot delete &quot;%1&quot;: %2.</source>
        <translation>„%1“ kann nicht gelöscht werden: %2.</translation>
    </message>
    <message>
        <source>This file was deleted or moved. Saving writes it again, here.</source>
        <translation>Diese Datei wurde gelöscht oder verschoben. Speichern schreibt sie hier neu.</translation>
    </message>
    <message>
        <source>This file was changed by another program. You have changes of your own here.</source>
        <translation>Diese Datei wurde von einem anderen Programm geändert. Sie haben hier eigene Änderungen.</translation>
    </message>
    <message>
        <source>&amp;Read Again (loses yours)</source>
        <translation>&amp;Neu einlesen (verwirft Ihre)</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>&amp;Meine behalten</translation>
    </message>
    <message>
        <source>its line %L1 has %L2 characters, and more than %L3 cannot be shown in one</source>
        <translation>ihre Zeile %L1 hat %L2 Zeichen, und mehr als %L3 lassen sich in einer nicht zeigen</translation>
    </message>
</context>
<context>
    <name>Workbench::EditorTabs</name>
    <message>
        <source>Save the Whole File as &amp;UTF-8</source>
        <translation>&amp;Ganze Datei als UTF-8 speichern</translation>
    </message>
    <message>
        <source>Try A&amp;gain</source>
        <translation>&amp;Nochmals versuchen</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Ungesicherte Änderungen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changes that are not saved.</source>
        <translation>„%1“ hat Änderungen, die nicht gespeichert sind.</translation>
    </message>
    <message numerus="yes">
        <source>%n files have changes that are not saved: %1.</source>
        <translation>
            <numerusform>%n Datei hat Änderungen, die nicht gespeichert sind: %1.</numerusform>
            <numerusform>%n Dateien haben Änderungen, die nicht gespeichert sind: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>The unsaved changes of &quot;%1&quot; are lost. %2</source>
        <translation>Die ungesicherten Änderungen von „%1“ sind verloren. %2</translation>
    </message>
    <message>
        <source>The unsaved changes of &quot;%1&quot; are in &quot;%2&quot;.</source>
        <translation>Die ungesicherten Änderungen von „%1“ stehen in „%2“.</translation>
    </message>
    <message>
        <source>Close (Ctrl+W)</source>
        <translation>Schließen (Strg+W)</translation>
    </message>
    <message>
        <source>Close the tab</source>
        <translation>Den Tab schließen</translation>
    </message>
    <message>
        <source>Saving %1…</source>
        <translation>%1 wird gesichert…</translation>
    </message>
</context>
<context>
    <name>Workbench::ExampleDialog</name>
    <message>
        <source>Open the Example</source>
        <translation>Beispiel öffnen</translation>
    </message>
    <message>
        <source>Makes a project of your own with a copy of the example. %1</source>
        <translation>Legt ein eigenes Projekt mit einer Kopie des Beispiels an. %1</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>Durch&amp;suchen…</translation>
    </message>
    <message>
        <source>Choose the folder that the copy is made in</source>
        <translation>Ordner wählen, in dem die Kopie angelegt wird</translation>
    </message>
    <message>
        <source>&amp;Make the Project</source>
        <translation>Projekt &amp;anlegen</translation>
    </message>
    <message>
        <source>Make the Project In</source>
        <translation>Projekt anlegen in</translation>
    </message>
    <message>
        <source>Choose a folder with its full path.</source>
        <translation>Wählen Sie einen Ordner mit vollständigem Pfad.</translation>
    </message>
    <message>
        <source>This folder exists already, and nothing in it is replaced. Choose a new one.</source>
        <translation>Dieser Ordner existiert bereits; darin wird nichts ersetzt. Wählen Sie einen neuen.</translation>
    </message>
</context>
<context>
    <name>Workbench::FindBar</name>
    <message>
        <source>Match case</source>
        <translation>Groß-/Kleinschreibung</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Previous match (Shift+F3)</source>
        <translation>Vorheriger Treffer (Umschalt+F3)</translation>
    </message>
    <message>
        <source>Next match (F3)</source>
        <translation>Nächster Treffer (F3)</translation>
    </message>
    <message>
        <source>Close (Escape)</source>
        <translation>Schließen (Esc)</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>E&amp;rsetzen</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>Alle ersetzen</translation>
    </message>
    <message>
        <source>Whole words</source>
        <translation>Ganze Wörter</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Regulärer Ausdruck</translation>
    </message>
    <message>
        <source>Up and Down bring back what was looked for before</source>
        <translation>Auf und Ab holen frühere Suchtexte zurück</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Ersetzen durch</translation>
    </message>
    <message>
        <source>With a regular expression: $1 or \1 is its first group, $0 all of it, \n a line end, \t a tab</source>
        <translation>Bei einem regulären Ausdruck: $1 oder \1 ist die erste Gruppe, $0 der ganze Treffer, \n ein Zeilenende, \t ein Tabulator</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>The search ends at line %1: there the expression takes too many steps.</source>
        <translation>Die Suche endet in Zeile %1: Dort braucht der Ausdruck zu viele Schritte.</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Suche läuft…</translation>
    </message>
    <message>
        <source>More than %1</source>
        <translation>Mehr als %1</translation>
    </message>
    <message>
        <source>Matches: %1</source>
        <translation>Treffer: %1</translation>
    </message>
    <message>
        <source>%1 of more than %2</source>
        <translation>%1 von mehr als %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 of %2, continued at the end</source>
        <translation>%1 von %2, vom Ende her fortgesetzt</translation>
    </message>
    <message>
        <source>%1 of %2, continued at the start</source>
        <translation>%1 von %2, am Anfang fortgesetzt</translation>
    </message>
    <message>
        <source>This file is open for reading. Press Ctrl+E to edit it.</source>
        <translation>Diese Datei ist zum Lesen geöffnet. Mit Strg+E bearbeiten Sie sie.</translation>
    </message>
    <message>
        <source>Nothing was replaced: there are more than %1 matches.</source>
        <translation>Nichts wurde ersetzt: Es gibt mehr als %1 Treffer.</translation>
    </message>
    <message>
        <source>Nothing was replaced: at line %1 the expression takes too many steps.</source>
        <translation>Nichts wurde ersetzt: In Zeile %1 braucht der Ausdruck zu viele Schritte.</translation>
    </message>
    <message>
        <source>Replacing…</source>
        <translation>Ersetzung läuft…</translation>
    </message>
    <message>
        <source>Replaced matches: %1.</source>
        <translation>Ersetzte Treffer: %1.</translation>
    </message>
</context>
<context>
    <name>Workbench::HelpBrowser</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>Workbench::HelpDesk</name>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>„%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>Benutzerhandbuch</translation>
    </message>
    <message>
        <source>The user guide is not installed. It belongs into the folder &quot;guide&quot; of %1.</source>
        <translation>Das Benutzerhandbuch ist nicht installiert. Es gehört in den Ordner „guide“ von %1.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>Workbench::HelpWindow</name>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Vorwärts</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <translation>&amp;Größer</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <translation>&amp;Kleiner</translation>
    </message>
    <message>
        <source>&amp;Usual Size</source>
        <translation>&amp;Normale Größe</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>I&amp;nhalt</translation>
    </message>
    <message>
        <source>F&amp;ind</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Places in the text</source>
        <translation>Fundstellen im Text</translation>
    </message>
    <message>
        <source>Find in the text</source>
        <translation>Im Text suchen</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>The first %1 of %2</source>
        <translation>Die ersten %1 von %2</translation>
    </message>
    <message>
        <source>Places: %1</source>
        <translation>Fundstellen: %1</translation>
    </message>
</context>
<context>
    <name>Workbench::InfoBar</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close the message</source>
        <translation>Die Meldung schließen</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
</context>
<context>
    <name>Workbench::IpActions</name>
    <message>
        <source>&amp;Bring Back…</source>
        <translation>&amp;Zurückholen…</translation>
    </message>
    <message>
        <source>No copy of a configuration was kept. %1</source>
        <translation>Es wurde keine Kopie einer Konfiguration aufbewahrt. %1</translation>
    </message>
    <message>
        <source>Unknown device</source>
        <translation>Unbekannter Baustein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is made for the device &quot;%2&quot;, which the device database does not know.</source>
        <translation>„%1“ ist für den Baustein „%2“, den die Bausteindatenbank nicht kennt.</translation>
    </message>
    <message>
        <source>Move it to a device that is known, or open it all the same: its dialog has no device then, and OK there stores it without one.</source>
        <translation>Stellen Sie sie auf einen bekannten Baustein um, oder öffnen Sie sie trotzdem: Ihr Dialog hat dann keinen Baustein, und OK speichert sie dort ohne einen.</translation>
    </message>
    <message>
        <source>Its plug-in cannot move it to another device. Opened all the same, its dialog has no device, and OK there stores it without one.</source>
        <translation>Das Plug-in kann sie nicht auf einen anderen Baustein umstellen. Wird sie trotzdem geöffnet, hat ihr Dialog keinen Baustein, und OK speichert sie dort ohne einen.</translation>
    </message>
    <message>
        <source>&amp;Move to Device…</source>
        <translation>Auf anderen &amp;Baustein umstellen…</translation>
    </message>
    <message>
        <source>&amp;Open All the Same</source>
        <translation>&amp;Trotzdem öffnen</translation>
    </message>
    <message>
        <source>No plug-in offers the IP of &quot;%1&quot;.</source>
        <translation>Kein Plug-in bietet die IP von „%1“ an.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not moved, because no copy of it can be kept. %2</source>
        <translation>„%1“ wird nicht umgestellt, weil keine Kopie aufbewahrt werden kann. %2</translation>
    </message>
    <message>
        <source>The plug-in has not moved &quot;%1&quot; to the device %2.</source>
        <translation>Das Plug-in hat „%1“ nicht auf den Baustein %2 umgestellt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is for the device %2 now. What was generated is still for the one before.</source>
        <translation>„%1“ ist jetzt für den Baustein %2. Das Generierte ist noch für den vorigen.</translation>
    </message>
    <message>
        <source>Open It to Generate It Ane&amp;w…</source>
        <translation>Öffnen und &amp;neu generieren…</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot; to Device</source>
        <translation>„%1“ auf einen Baustein umstellen</translation>
    </message>
    <message>
        <source>This copy is gone.</source>
        <translation>Diese Kopie ist nicht mehr da.</translation>
    </message>
    <message>
        <source>Bring back</source>
        <translation>Zurückholen</translation>
    </message>
    <message>
        <source>Replace &quot;%1&quot; by what it was before?</source>
        <translation>„%1“ durch den früheren Stand ersetzen?</translation>
    </message>
    <message>
        <source>Write &quot;%1&quot; again as it was?</source>
        <translation>„%1“ wieder so schreiben, wie es war?</translation>
    </message>
    <message>
        <source>%1.
A copy of the present configuration is kept as well.</source>
        <translation>%1.
Auch von der jetzigen Konfiguration wird eine Kopie aufbewahrt.</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is as it was. What was generated is not.</source>
        <translation>„%1“ ist wieder, wie es war. Das Generierte ist es nicht.</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Zeigen</translation>
    </message>
    <message numerus="yes">
        <source>%n IPs of this project are made for other devices.</source>
        <translation>
            <numerusform>%n IP dieses Projekts ist für einen anderen Baustein.</numerusform>
            <numerusform>%n IPs dieses Projekts sind für andere Bausteine.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Move It to the Project&apos;s Device…</source>
        <translation>Auf den Baustein des Projekts umste&amp;llen…</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is still made for the device %2.</source>
        <translation>„%1“ ist noch für den Baustein %2.</translation>
    </message>
    <message>
        <source>The dialog of &quot;%1&quot; was closed without OK. Its changes are kept as a draft.</source>
        <translation>Der Dialog von „%1“ wurde ohne OK geschlossen. Seine Änderungen sind als Zwischenstand aufbewahrt.</translation>
    </message>
</context>
<context>
    <name>Workbench::IpSession</name>
    <message>
        <source>The dialog of an IP is open. Close it first.</source>
        <translation>Der Dialog einer IP ist offen. Schließen Sie ihn zuerst.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a configuration of the IP &quot;%2&quot;, which no plug-in offers. Tools &gt; Plug-ins lists what is loaded.</source>
        <translation>„%1“ ist eine Konfiguration der IP „%2“, die kein Plug-in anbietet. Extras &gt; Plug-ins zeigt, was geladen ist.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no IP configuration: %2.</source>
        <translation>„%1“ ist keine IP-Konfiguration: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no IP configuration: it has no entry &quot;type&quot;.</source>
        <translation>„%1“ ist keine IP-Konfiguration: Der Eintrag „type“ fehlt.</translation>
    </message>
</context>
<context>
    <name>Workbench::KeptConfigurations</name>
    <message>
        <source>Replaced %1</source>
        <translation>Ersetzt, %1</translation>
    </message>
    <message>
        <source>%1; for %2</source>
        <translation>%1; für %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large for a configuration; no copy is kept.</source>
        <translation>„%1“ ist zu groß für eine Konfiguration; es wird keine Kopie aufbewahrt.</translation>
    </message>
    <message>
        <source>The copy is gone.</source>
        <translation>Die Kopie ist nicht mehr da.</translation>
    </message>
    <message>
        <source>Left without OK, %1</source>
        <translation>Ohne OK verlassen, %1</translation>
    </message>
    <message numerus="yes">
        <source>%1, and %n more before</source>
        <translation>
            <numerusform>%1, davor %n weiterer</numerusform>
            <numerusform>%1, davor %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Workbench::KeptDialog</name>
    <message>
        <source>Bring Back a Configuration</source>
        <translation>Konfiguration zurückholen</translation>
    </message>
    <message>
        <source>Kept configurations</source>
        <translation>Aufbewahrte Konfigurationen</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfiguration</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Wann</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Baustein</translation>
    </message>
    <message>
        <source>&amp;Bring Back…</source>
        <translation>&amp;Zurückholen…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>replaced</source>
        <translation>ersetzt</translation>
    </message>
    <message>
        <source>Before a configuration is replaced, a copy is kept; and so is what was in a dialog that was left without OK. The copies are whole files in &quot;%1&quot;.</source>
        <translation>Bevor eine Konfiguration ersetzt wird, wird eine Kopie aufbewahrt; ebenso der Inhalt eines Dialogs, der ohne OK verlassen wurde. Die Kopien sind vollständige Dateien in „%1“.</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>left without OK</source>
        <translation>ohne OK verlassen</translation>
    </message>
</context>
<context>
    <name>Workbench::LastRun</name>
    <message>
        <source>The configuration has changed since the run; this is how it is now.</source>
        <translation>Die Konfiguration hat sich seit dem Lauf geändert; dies ist der jetzige Stand.</translation>
    </message>
    <message>
        <source>The results cannot be shown after a restart. %1</source>
        <translation>Die Ergebnisse können nach einem Neustart nicht angezeigt werden. %1</translation>
    </message>
    <message>
        <source>The results of the last run are being read…</source>
        <translation>Die Ergebnisse des letzten Laufs werden gelesen…</translation>
    </message>
</context>
<context>
    <name>Workbench::LogView</name>
    <message>
        <source>Log of the synthesis tool</source>
        <translation>Protokoll des Synthesewerkzeugs</translation>
    </message>
    <message>
        <source>The output of the synthesis tool appears here.</source>
        <translation>Hier erscheint die Ausgabe des Synthesewerkzeugs.</translation>
    </message>
</context>
<context>
    <name>Workbench::MainWindow</name>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Extras</translation>
    </message>
    <message>
        <source>&amp;Plug-ins…</source>
        <translation>&amp;Plug-ins…</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New Project…</source>
        <translation>&amp;Neues Projekt…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Close &amp;Project</source>
        <translation>Projekt sch&amp;ließen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;All</source>
        <translation>&amp;Alle speichern</translation>
    </message>
    <message>
        <source>&amp;Close Tab</source>
        <translation>&amp;Tab schließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Edit File</source>
        <translation>&amp;Datei bearbeiten</translation>
    </message>
    <message>
        <source>Lets the file be changed; it opens for reading</source>
        <translation>Lässt Änderungen an der Datei zu; sie öffnet sich zum Lesen</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Suchen…</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>&amp;Nächstes suchen</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>&amp;Vorheriges suchen</translation>
    </message>
    <message>
        <source>&amp;Go to Line…</source>
        <translation>&amp;Gehe zu Zeile…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Results of the Last Run</source>
        <translation>&amp;Ergebnisse des letzten Laufs</translation>
    </message>
    <message>
        <source>&amp;Next Message</source>
        <translation>&amp;Nächste Meldung</translation>
    </message>
    <message>
        <source>&amp;Previous Message</source>
        <translation>&amp;Vorherige Meldung</translation>
    </message>
    <message>
        <source>Next &amp;Tab</source>
        <translation>Nächster &amp;Tab</translation>
    </message>
    <message>
        <source>Pre&amp;vious Tab</source>
        <translation>Vorheriger T&amp;ab</translation>
    </message>
    <message>
        <source>&amp;Larger Text</source>
        <translation>&amp;Größerer Text</translation>
    </message>
    <message>
        <source>&amp;Smaller Text</source>
        <translation>&amp;Kleinerer Text</translation>
    </message>
    <message>
        <source>Go to Pro&amp;ject</source>
        <translation>Zum &amp;Projekt</translation>
    </message>
    <message>
        <source>Go to Catalo&amp;gue</source>
        <translation>Zum Kata&amp;log</translation>
    </message>
    <message>
        <source>Go to &amp;Editor</source>
        <translation>Zum E&amp;ditor</translation>
    </message>
    <message>
        <source>Go to &amp;Messages</source>
        <translation>Zu den &amp;Meldungen</translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation>&amp;Projekt</translation>
    </message>
    <message>
        <source>Create &amp;IP…</source>
        <translation>&amp;IP erzeugen…</translation>
    </message>
    <message>
        <source>Goes to the catalogue; Enter there creates the selected IP</source>
        <translation>Geht zum Katalog; dort erzeugt die Eingabetaste die ausgewählte IP</translation>
    </message>
    <message>
        <source>&amp;Open Selected</source>
        <translation>Auswahl ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Open as Te&amp;xt</source>
        <translation>Als &amp;Text öffnen</translation>
    </message>
    <message>
        <source>Shows an IP&apos;s configuration in the editor, not in its dialog</source>
        <translation>Zeigt die Konfiguration einer IP im Editor, nicht in ihrem Dialog</translation>
    </message>
    <message>
        <source>&amp;Hand-off</source>
        <translation>Über&amp;gabe</translation>
    </message>
    <message>
        <source>Simu&amp;late</source>
        <translation>&amp;Simulieren</translation>
    </message>
    <message>
        <source>&amp;Move to Device…</source>
        <translation>Auf anderen &amp;Baustein umstellen…</translation>
    </message>
    <message>
        <source>&amp;Bring Back a Configuration…</source>
        <translation>Konfiguration &amp;zurückholen…</translation>
    </message>
    <message>
        <source>&amp;Top Module…</source>
        <translation>Top-&amp;Modul…</translation>
    </message>
    <message>
        <source>De&amp;vice…</source>
        <translation>B&amp;austein…</translation>
    </message>
    <message>
        <source>&amp;Add Source Files…</source>
        <translation>&amp;Quelldateien hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;New Source File…</source>
        <translation>&amp;Neue Quelldatei…</translation>
    </message>
    <message>
        <source>&amp;Remove from Project</source>
        <translation>Aus dem Projekt entfe&amp;rnen</translation>
    </message>
    <message>
        <source>The file itself stays</source>
        <translation>Die Datei selbst bleibt</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Help on the Selected &amp;IP</source>
        <translation>Hilfe zur ausgewählten &amp;IP</translation>
    </message>
    <message>
        <source>The document of the IP that is selected in the catalogue</source>
        <translation>Das Dokument der IP, die im Katalog ausgewählt ist</translation>
    </message>
    <message>
        <source>&amp;About Tarvo Workbench</source>
        <translation>&amp;Über Tarvo Workbench</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Über &amp;Qt</translation>
    </message>
    <message>
        <source>Shows what firmware and other tools get of the selected IP, and exports it</source>
        <translation>Zeigt, was Firmware und andere Werkzeuge von der ausgewählten IP erhalten, und exportiert es</translation>
    </message>
    <message>
        <source>The plug-in of %1 hands on nothing</source>
        <translation>Das Plug-in von %1 übergibt nichts</translation>
    </message>
    <message>
        <source>Select an IP in the project to see what firmware and other tools get of it</source>
        <translation>Wählen Sie im Projekt eine IP aus, um zu sehen, was Firmware und andere Werkzeuge von ihr erhalten</translation>
    </message>
    <message>
        <source>Runs programs on the selected IP before there is hardware</source>
        <translation>Führt Programme auf der ausgewählten IP aus, bevor es Hardware gibt</translation>
    </message>
    <message>
        <source>The plug-in of %1 cannot simulate</source>
        <translation>Das Plug-in von %1 kann nicht simulieren</translation>
    </message>
    <message>
        <source>Select an IP in the project to run programs on it</source>
        <translation>Wählen Sie im Projekt eine IP aus, um Programme auf ihr auszuführen</translation>
    </message>
    <message>
        <source>Changes the device of the selected IP, and shows what it loses</source>
        <translation>Ändert den Baustein der ausgewählten IP und zeigt, was sie verliert</translation>
    </message>
    <message>
        <source>The plug-in of %1 cannot move its IPs to other devices</source>
        <translation>Das Plug-in von %1 kann seine IPs nicht auf andere Bausteine umstellen</translation>
    </message>
    <message>
        <source>Select an IP in the project to change its device</source>
        <translation>Wählen Sie im Projekt eine IP aus, um ihren Baustein zu ändern</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>IP Catalogue</source>
        <translation>IP-Katalog</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>The device of the project; click to choose another one</source>
        <translation>Der Baustein des Projekts; ein Klick wählt einen anderen</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; of this project is not in the device database.</source>
        <translation>Der Baustein „%1“ dieses Projekts ist nicht in der Bausteindatenbank.</translation>
    </message>
    <message>
        <source>Choose &amp;a Device…</source>
        <translation>Baustein &amp;wählen…</translation>
    </message>
    <message>
        <source>%1 - Tarvo Workbench</source>
        <translation>%1 - Tarvo Workbench</translation>
    </message>
    <message>
        <source>Tarvo Workbench</source>
        <translation>Tarvo Workbench</translation>
    </message>
    <message>
        <source> No device</source>
        <translation> Kein Baustein</translation>
    </message>
    <message>
        <source>Device: %1</source>
        <translation>Baustein: %1</translation>
    </message>
    <message>
        <source>Project %1</source>
        <translation>Projekt %1</translation>
    </message>
    <message>
        <source>Line %1, column %2   %3   %4</source>
        <translation>Zeile %1, Spalte %2   %3   %4</translation>
    </message>
    <message>
        <source>editing</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>reading (Ctrl+E edits)</source>
        <translation>Lesen (Strg+E bearbeitet)</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Projects, IPs and sources (*.tvproj *.ipc *.v *.vh *.sv *.svh *.vo *.vg *.vhd *.vhdl *.log *.json);;Projects (*.tvproj);;IP configurations (*.ipc);;All files (*)</source>
        <translation>Projekte, IPs und Quellen (*.tvproj *.ipc *.v *.vh *.sv *.svh *.vo *.vg *.vhd *.vhdl *.log *.json);;Projekte (*.tvproj);;IP-Konfigurationen (*.ipc);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>No project</source>
        <translation>Kein Projekt</translation>
    </message>
    <message>
        <source>An IP is made for a device and into a folder. Both come with a project: make or open one first.</source>
        <translation>Eine IP wird für einen Baustein und in einen Ordner erzeugt. Beides kommt mit einem Projekt: Legen Sie zuerst eines an, oder öffnen Sie eines.</translation>
    </message>
    <message>
        <source>Synthesis: starting</source>
        <translation>Synthese: Start</translation>
    </message>
    <message>
        <source>Synthesis: %1</source>
        <translation>Synthese: %1</translation>
    </message>
    <message>
        <source>Synthesis cancelled</source>
        <translation>Synthese abgebrochen</translation>
    </message>
    <message>
        <source>Synthesis done</source>
        <translation>Synthese fertig</translation>
    </message>
    <message>
        <source>Synthesis failed</source>
        <translation>Synthese fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Go to Line</source>
        <translation>Gehe zu Zeile</translation>
    </message>
    <message>
        <source>Line (1 to %1):</source>
        <translation>Zeile (1 bis %1):</translation>
    </message>
    <message>
        <source>A run is active</source>
        <translation>Ein Lauf ist aktiv</translation>
    </message>
    <message>
        <source>Synthesis is running. Closing the window ends the run; its results are not made.</source>
        <translation>Die Synthese läuft. Schließen des Fensters beendet den Lauf; seine Ergebnisse entstehen nicht.</translation>
    </message>
    <message>
        <source>&amp;End Run and Close</source>
        <translation>Lauf &amp;beenden und schließen</translation>
    </message>
    <message>
        <source>&amp;Keep Running</source>
        <translation>&amp;Weiterlaufen lassen</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>an action and its key</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Reopen the &amp;Last Project at Start</source>
        <translation>Beim Start letztes &amp;Projekt wieder öffnen</translation>
    </message>
    <message>
        <source>Comes back to the project and its tabs when the workbench is started</source>
        <translation>Kehrt beim Start der Workbench zum Projekt und seinen Tabs zurück</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>&amp;Block Diagram…</source>
        <translation>&amp;Blockdiagramm…</translation>
    </message>
    <message>
        <source>Writes the diagram of the IP that is selected in the project as SVG, PNG or PDF</source>
        <translation>Schreibt das Diagramm der im Projekt ausgewählten IP als SVG, PNG oder PDF</translation>
    </message>
    <message>
        <source>Writes a table of the last run as CSV, JSON or Markdown</source>
        <translation>Schreibt eine Tabelle des letzten Laufs als CSV, JSON oder Markdown</translation>
    </message>
    <message>
        <source>Rep&amp;lace…</source>
        <translation>Erse&amp;tzen…</translation>
    </message>
    <message>
        <source>Open in E&amp;xternal Editor</source>
        <translation>Im e&amp;xternen Editor öffnen</translation>
    </message>
    <message>
        <source>Starts the program that the settings name, with the file and line</source>
        <translation>Startet das Programm aus den Einstellungen mit Datei und Zeile</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>E&amp;instellungen…</translation>
    </message>
    <message>
        <source>Tool &amp;Bar</source>
        <translation>&amp;Werkzeugleiste</translation>
    </message>
    <message>
        <source>Open the &amp;Folder</source>
        <translation>Or&amp;dner öffnen</translation>
    </message>
    <message>
        <source>Shows the folder of what is selected in the file manager</source>
        <translation>Zeigt den Ordner der Auswahl im Dateimanager</translation>
    </message>
    <message>
        <source>Copy the &amp;Path</source>
        <translation>&amp;Pfad kopieren</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>%1[*] - %2 - Tarvo Workbench</source>
        <translation>%1[*] - %2 - Tarvo Workbench</translation>
    </message>
    <message>
        <source>%1[*] - Tarvo Workbench</source>
        <translation>%1[*] - Tarvo Workbench</translation>
    </message>
    <message>
        <source>The last starts ended while they opened what was open before, so nothing is opened now.</source>
        <translation>Die letzten Starts endeten beim Öffnen dessen, was zuvor offen war; daher wird jetzt nichts geöffnet.</translation>
    </message>
    <message>
        <source>&amp;Open It All the Same</source>
        <translation>Trotzdem ö&amp;ffnen</translation>
    </message>
    <message>
        <source>The project of the last time is not opened. %1</source>
        <translation>Das Projekt vom letzten Mal wird nicht geöffnet. %1</translation>
    </message>
    <message>
        <source>This file is generated from &quot;%1&quot;. The next generation writes it anew, and keeps what you change here in a copy beside it.</source>
        <translation>Diese Datei ist aus „%1“ generiert. Die nächste Generierung schreibt sie neu und bewahrt Ihre Änderungen in einer Kopie daneben auf.</translation>
    </message>
    <message>
        <source>Open the &amp;Configuration</source>
        <translation>&amp;Konfiguration öffnen</translation>
    </message>
    <message>
        <source>Export Block Diagram</source>
        <translation>Blockdiagramm exportieren</translation>
    </message>
    <message>
        <source>Pictures (*.svg *.png *.pdf)</source>
        <translation>Bilder (*.svg *.png *.pdf)</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>Tabelle exportieren</translation>
    </message>
    <message>
        <source>Tables (*.csv *.json *.md)</source>
        <translation>Tabellen (*.csv *.json *.md)</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>I&amp;nhalt</translation>
    </message>
    <message>
        <source>The user guide, at what it says of the place with the focus</source>
        <translation>Das Benutzerhandbuch bei dem, was es zur Stelle mit dem Fokus sagt</translation>
    </message>
</context>
<context>
    <name>Workbench::Measurement</name>
    <message>
        <source>A folder for it cannot be made: %1</source>
        <translation>Ein Ordner dafür kann nicht angelegt werden: %1</translation>
    </message>
    <message>
        <source>The answer of &quot;%1&quot; cannot be used: %2.</source>
        <translation>Die Antwort von „%1“ ist nicht brauchbar: %2.</translation>
    </message>
</context>
<context>
    <name>Workbench::MessageModel</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n times)</source>
        <translation>
            <numerusform>%1 (%n-mal)</numerusform>
            <numerusform>%1 (%n-mal)</numerusform>
        </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
</context>
<context>
    <name>Workbench::MessagesView</name>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>Workbench::MeterBar</name>
    <message>
        <source>%1 %2 %3</source>
        <translation>%1 %2 %3</translation>
    </message>
    <message>
        <source>%1: none</source>
        <translation>%1: keine</translation>
    </message>
</context>
<context>
    <name>Workbench::MeterPanel</name>
    <message>
        <source>&amp;Measure after a pause of</source>
        <translation>&amp;Messen nach einer Pause von</translation>
    </message>
    <message>
        <source>Runs the synthesis of this configuration in the background, in a folder of its own, while nothing else wants the processor</source>
        <translation>Führt die Synthese dieser Konfiguration im Hintergrund und in einem eigenen Ordner aus, solange nichts anderes den Prozessor braucht</translation>
    </message>
    <message>
        <source>Seconds without a change before it is measured</source>
        <translation>Sekunden ohne Änderung, nach denen gemessen wird</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>The dialog does not tell its configuration: %1.</source>
        <translation>Der Dialog nennt seine Konfiguration nicht: %1.</translation>
    </message>
    <message>
        <source>The plug-in failed when it was asked for an estimate: %1.</source>
        <translation>Das Plug-in ist bei der Frage nach einer Schätzung gescheitert: %1.</translation>
    </message>
    <message>
        <source>What the plug-in estimates cannot be used: %1.</source>
        <translation>Die Schätzung des Plug-ins ist nicht brauchbar: %1.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 %2 (%3)</source>
        <translation>%1 %2 (%3)</translation>
    </message>
    <message>
        <source>Not counted are the contents of black boxes: %1.</source>
        <translation>Nicht gezählt ist der Inhalt der Blackboxes: %1.</translation>
    </message>
    <message>
        <source>Pins</source>
        <translation>Pins</translation>
    </message>
    <message>
        <source>= Exact: a synthesis of this configuration has counted.</source>
        <translation>= Genau: Eine Synthese dieser Konfiguration hat gezählt.</translation>
    </message>
    <message>
        <source>%1 Estimated.</source>
        <translation>%1 Geschätzt.</translation>
    </message>
    <message>
        <source>The synthesis counts in the background, for %1 s now.</source>
        <translation>Die Synthese zählt im Hintergrund, seit %1 s.</translation>
    </message>
    <message>
        <source>The synthesis counts after %1 s without a change.</source>
        <translation>Die Synthese zählt nach %1 s ohne Änderung.</translation>
    </message>
    <message>
        <source>It could not be measured: %1</source>
        <translation>Es konnte nicht gemessen werden: %1</translation>
    </message>
    <message>
        <source>The plug-in failed: %1.</source>
        <translation>Das Plug-in ist gescheitert: %1.</translation>
    </message>
    <message>
        <source>What the plug-in answers cannot be used: %1.</source>
        <translation>Die Antwort des Plug-ins ist nicht brauchbar: %1.</translation>
    </message>
</context>
<context>
    <name>Workbench::MoveDialog</name>
    <message>
        <source>Move to Device</source>
        <translation>Auf anderen Baustein umstellen</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot; to the device %2?</source>
        <translation>„%1“ auf den Baustein %2 umstellen?</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot; from the device %2 to %3?</source>
        <translation>„%1“ vom Baustein %2 auf %3 umstellen?</translation>
    </message>
    <message>
        <source>Nothing of the configuration is lost.</source>
        <translation>Von der Konfiguration geht nichts verloren.</translation>
    </message>
    <message>
        <source>What is &amp;lost or changed:</source>
        <translation>Was &amp;verloren geht oder sich ändert:</translation>
    </message>
    <message>
        <source>What is lost or changed</source>
        <translation>Was verloren geht oder sich ändert</translation>
    </message>
    <message>
        <source>A copy of the present configuration is kept. What was generated stays as it is until you generate the IP anew.</source>
        <translation>Von der jetzigen Konfiguration wird eine Kopie aufbewahrt. Das Generierte bleibt, wie es ist, bis Sie die IP neu generieren.</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;Umstellen</translation>
    </message>
</context>
<context>
    <name>Workbench::NewProjectDialog</name>
    <message>
        <source>New Project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>C&amp;reate in:</source>
        <translation>Anlegen &amp;in:</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>Durch&amp;suchen…</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Baustein</translation>
    </message>
    <message>
        <source>Create Project</source>
        <translation>Projekt anlegen</translation>
    </message>
    <message>
        <source>Create In</source>
        <translation>Anlegen in</translation>
    </message>
    <message>
        <source>Choose the folder that the project&apos;s folder is made in.</source>
        <translation>Ordner wählen, in dem der Projektordner angelegt wird.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file.</source>
        <translation>„%1“ ist eine Datei.</translation>
    </message>
    <message>
        <source>Select a device in the table.</source>
        <translation>Wählen Sie in der Tabelle einen Baustein aus.</translation>
    </message>
    <message>
        <source>Makes the project in %1</source>
        <translation>Legt das Projekt in %1 an</translation>
    </message>
    <message>
        <source>Makes the project in the existing folder %1; its files stay as they are</source>
        <translation>Legt das Projekt im vorhandenen Ordner %1 an; dessen Dateien bleiben, wie sie sind</translation>
    </message>
    <message>
        <source>New Subsystem: %1</source>
        <translation>Neues Subsystem: %1</translation>
    </message>
    <message>
        <source>Create and Configure</source>
        <translation>Anlegen und konfigurieren</translation>
    </message>
</context>
<context>
    <name>Workbench::OutputPane</name>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Messages (errors: %1, warnings: %2)</source>
        <translation>Meldungen (Fehler: %1, Warnungen: %2)</translation>
    </message>
</context>
<context>
    <name>Workbench::PinPanel</name>
    <message>
        <source>Pins of the GPIO</source>
        <translation>Pins des GPIO</translation>
    </message>
</context>
<context>
    <name>Workbench::PinSwitch</name>
    <message>
        <source>high</source>
        <translation>high</translation>
    </message>
    <message>
        <source>low</source>
        <translation>low</translation>
    </message>
    <message>
        <source>driven by the subsystem</source>
        <translation>vom Subsystem getrieben</translation>
    </message>
    <message>
        <source>not driven by the subsystem</source>
        <translation>nicht vom Subsystem getrieben</translation>
    </message>
    <message>
        <source>the switch drives it high</source>
        <translation>der Schalter treibt ihn auf high</translation>
    </message>
    <message>
        <source>the switch drives it low</source>
        <translation>der Schalter treibt ihn auf low</translation>
    </message>
    <message>
        <source>the switch leaves it alone</source>
        <translation>der Schalter treibt ihn nicht</translation>
    </message>
    <message>
        <source>Pin %1: %2</source>
        <translation>Pin %1: %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Pin %1: %2
%3, %4
Click or press Space to drive it high, low, or not at all</source>
        <translation>Pin %1: %2
%3, %4
Klick oder Leertaste: auf high, auf low oder gar nicht treiben</translation>
    </message>
</context>
<context>
    <name>Workbench::PluginList</name>
    <message>
        <source>Plug-in not used: %1</source>
        <translation>Plug-in nicht verwendet: %1</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; cannot be used.</source>
        <translation>Das Plug-in „%1“ kann nicht verwendet werden.</translation>
    </message>
    <message numerus="yes">
        <source>%n plug-ins cannot be used.</source>
        <translation>
            <numerusform>%n Plug-in kann nicht verwendet werden.</numerusform>
            <numerusform>%n Plug-ins können nicht verwendet werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Detai&amp;ls</source>
        <translation>Detai&amp;ls</translation>
    </message>
    <message>
        <source>Not every plug-in of the new folders can be used.</source>
        <translation>Nicht jedes Plug-in der neuen Ordner kann verwendet werden.</translation>
    </message>
</context>
<context>
    <name>Workbench::PluginsDialog</name>
    <message>
        <source>Plug-ins</source>
        <translation>Plug-ins</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Plug-in</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(ohne Namen)</translation>
    </message>
    <message>
        <source>Offers %1 %2</source>
        <translation>Bietet %1 %2 an</translation>
    </message>
    <message>
        <source>Select a plug-in to read all about it.</source>
        <translation>Wählen Sie ein Plug-in aus, um alles darüber zu lesen.</translation>
    </message>
    <message>
        <source>&amp;Folders that are searched for plug-ins too (one that is removed counts until the next start):</source>
        <translation>&amp;Ordner, in denen ebenfalls Plug-ins gesucht werden (ein entfernter zählt bis zum nächsten Start):</translation>
    </message>
    <message>
        <source>Plug-in folders</source>
        <translation>Plug-in-Ordner</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Plug-in Folder</source>
        <translation>Plug-in-Ordner</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Nochmals versuchen</translation>
    </message>
    <message>
        <source>Loads the plug-ins that cannot be used once more</source>
        <translation>Lädt die nicht verwendbaren Plug-ins noch einmal</translation>
    </message>
</context>
<context>
    <name>Workbench::PreviewPanel</name>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Edited by hand</source>
        <translation>Von Hand bearbeitet</translation>
    </message>
    <message>
        <source>Made by the tool</source>
        <translation>Vom Werkzeug erzeugt</translation>
    </message>
    <message>
        <source>Equal</source>
        <translation>Gleich</translation>
    </message>
    <message>
        <source>Stays</source>
        <translation>Bleibt</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Entfernt</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Baustein</translation>
    </message>
    <message>
        <source>Address map</source>
        <translation>Adressübersicht</translation>
    </message>
    <message>
        <source>Interrupts</source>
        <translation>Interrupts</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Ports</translation>
    </message>
    <message>
        <source>Registers</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>Black boxes</source>
        <translation>Blackboxes</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>Ressourcen</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>Was sich unterscheidet</translation>
    </message>
    <message>
        <source>&amp;Next Change</source>
        <translation>&amp;Nächste Änderung</translation>
    </message>
    <message>
        <source>&amp;Copy as Text</source>
        <translation>Als Text &amp;kopieren</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Choose a file.</source>
        <translation>Wählen Sie eine Datei.</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>This IP does not tell what it would generate.</source>
        <translation>Diese IP sagt nicht, was sie generieren würde.</translation>
    </message>
    <message>
        <source>The plug-in failed: %1</source>
        <translation>Das Plug-in ist gescheitert: %1</translation>
    </message>
    <message>
        <source>The plug-in&apos;s preview cannot be used: %1.</source>
        <translation>Die Vorschau des Plug-ins ist nicht brauchbar: %1.</translation>
    </message>
    <message>
        <source>OK would change no file.</source>
        <translation>OK würde keine Datei ändern.</translation>
    </message>
    <message numerus="yes">
        <source>OK would write %1 of %n files.</source>
        <translation>
            <numerusform>OK würde %1 von %n Datei schreiben.</numerusform>
            <numerusform>OK würde %1 von %n Dateien schreiben.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nichts</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>What it will hold is not known.</source>
        <translation>Was sie enthalten wird, ist nicht bekannt.</translation>
    </message>
</context>
<context>
    <name>Workbench::ProgramPart</name>
    <message>
        <source>&amp;Browse…</source>
        <translation>Durch&amp;suchen…</translation>
    </message>
    <message>
        <source>Bro&amp;wse…</source>
        <translation>Durchsu&amp;chen…</translation>
    </message>
    <message>
        <source>Let the config&amp;uration start from them</source>
        <translation>&amp;Konfiguration damit starten lassen</translation>
    </message>
    <message>
        <source>Make the F&amp;iles</source>
        <translation>Dateien er&amp;zeugen</translation>
    </message>
    <message>
        <source>the linked program, as the compiler leaves it</source>
        <translation>das gelinkte Programm, wie es der Compiler liefert</translation>
    </message>
    <message>
        <source>Choose the program</source>
        <translation>Programm wählen</translation>
    </message>
    <message>
        <source>Choose the folder of the program&apos;s files</source>
        <translation>Ordner der Programmdateien wählen</translation>
    </message>
    <message>
        <source>Sets the options of the configuration for it; a copy of the old one is kept</source>
        <translation>Setzt die Optionen der Konfiguration dafür; von der alten wird eine Kopie aufbewahrt</translation>
    </message>
    <message>
        <source>Checks that the program fits, and writes the files of the memory</source>
        <translation>Prüft, ob das Programm passt, und schreibt die Dateien des Speichers</translation>
    </message>
    <message>
        <source>What became of the program</source>
        <translation>Was aus dem Programm wurde</translation>
    </message>
    <message>
        <source>Makes the files from which the memory of the IP starts with a program, and checks that the program fits.</source>
        <translation>Erzeugt die Dateien, mit denen der Speicher der IP bei einem Programm beginnt, und prüft, ob das Programm passt.</translation>
    </message>
    <message>
        <source>Progra&amp;m:</source>
        <translation>Progra&amp;mm:</translation>
    </message>
    <message>
        <source>Folde&amp;r:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>A file, or one beside the configuration</source>
        <translation>Eine Datei, auch relativ zur Konfiguration</translation>
    </message>
    <message>
        <source>A folder, or one beside the configuration</source>
        <translation>Ein Ordner, auch relativ zur Konfiguration</translation>
    </message>
    <message>
        <source>Nothing is written, because no copy of the configuration can be kept. %1</source>
        <translation>Es wird nichts geschrieben, weil keine Kopie der Konfiguration aufbewahrt werden kann. %1</translation>
    </message>
    <message>
        <source>%1 of %2 bytes are used, %3 are free.</source>
        <translation>%1 von %2 Bytes sind belegt, %3 sind frei.</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>The files %1 are in &quot;%2&quot;.</source>
        <translation>Die Dateien %1 stehen in „%2“.</translation>
    </message>
    <message>
        <source>The configuration starts from them now; generate it anew.</source>
        <translation>Die Konfiguration startet jetzt damit; generieren Sie sie neu.</translation>
    </message>
    <message>
        <source>The configuration starts from them already; generate it anew.</source>
        <translation>Die Konfiguration startet schon damit; generieren Sie sie neu.</translation>
    </message>
    <message>
        <source>The configuration does not start from them.</source>
        <translation>Die Konfiguration startet nicht damit.</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Programs (*.elf *.axf *.out *.hex *.ihex *.bin);;All files (*)</source>
        <translation>Programme (*.elf *.axf *.out *.hex *.ihex *.bin);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Folder for the program&apos;s files</source>
        <translation>Ordner für die Programmdateien</translation>
    </message>
</context>
<context>
    <name>Workbench::Project</name>
    <message>
        <source>The project needs a name.</source>
        <translation>Das Projekt braucht einen Namen.</translation>
    </message>
    <message>
        <source>The name must not begin or end with a blank.</source>
        <translation>Der Name darf nicht mit einem Leerzeichen beginnen oder enden.</translation>
    </message>
    <message>
        <source>The name must not contain &quot;/&quot; or &quot;\&quot; nor begin with a dot.</source>
        <translation>Der Name darf weder „/“ noch „\“ enthalten und nicht mit einem Punkt beginnen.</translation>
    </message>
    <message>
        <source>The name must not contain control characters.</source>
        <translation>Der Name darf keine Steuerzeichen enthalten.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Der Name ist zu lang.</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; exists already.</source>
        <translation>Das Projekt „%1“ existiert bereits.</translation>
    </message>
    <message>
        <source>The project file &quot;%1&quot; was deleted. The next change of the project writes it again.</source>
        <translation>Die Projektdatei „%1“ wurde gelöscht. Die nächste Änderung des Projekts schreibt sie neu.</translation>
    </message>
</context>
<context>
    <name>Workbench::ProjectActions</name>
    <message>
        <source>Add Source Files</source>
        <translation>Quelldateien hinzufügen</translation>
    </message>
    <message>
        <source>HDL sources (*.v *.vh *.sv *.svh *.vhd *.vhdl);;All files (*)</source>
        <translation>HDL-Quellen (*.v *.vh *.sv *.svh *.vhd *.vhdl);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>New Source File</source>
        <translation>Neue Quelldatei</translation>
    </message>
    <message>
        <source>Top Module</source>
        <translation>Top-Modul</translation>
    </message>
    <message>
        <source>Name of the design&apos;s top module:</source>
        <translation>Name des Top-Moduls des Entwurfs:</translation>
    </message>
    <message>
        <source>Device of the Project</source>
        <translation>Baustein des Projekts</translation>
    </message>
</context>
<context>
    <name>Workbench::ProjectModel</name>
    <message>
        <source>Sources (top module %1)</source>
        <translation>Quellen (Top-Modul %1)</translation>
    </message>
    <message>
        <source>IPs (none yet)</source>
        <translation>IPs (noch keine)</translation>
    </message>
    <message>
        <source>IPs</source>
        <translation>IPs</translation>
    </message>
    <message>
        <source>Sources (none yet)</source>
        <translation>Quellen (noch keine)</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Quellen</translation>
    </message>
    <message>
        <source>The design&apos;s source files, in the order of compilation</source>
        <translation>Die Quelldateien des Entwurfs in der Reihenfolge der Kompilierung</translation>
    </message>
    <message>
        <source>The IPs of the project. Open one to change and generate it again.</source>
        <translation>Die IPs des Projekts. Öffnen Sie eine, um sie zu ändern und neu zu generieren.</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (fehlt)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 does not exist</source>
        <translation>%1 existiert nicht</translation>
    </message>
    <message>
        <source>%1
%2
Project &gt; Move to Device… moves it.</source>
        <translation>%1
%2
Projekt &gt; Auf anderen Baustein umstellen… stellt sie um.</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiterer</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>a file and what is to be said of it</comment>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>Workbench::ProjectPane</name>
    <message>
        <source>No project is open.</source>
        <translation>Kein Projekt ist geöffnet.</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist.</source>
        <translation>„%1“ existiert nicht.</translation>
    </message>
</context>
<context>
    <name>Workbench::RecentProjects</name>
    <message>
        <source>No project yet</source>
        <translation>Noch kein Projekt</translation>
    </message>
</context>
<context>
    <name>Workbench::ResourceModel</name>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>The run before did not tell this.</source>
        <translation>Der Lauf davor hat dies nicht genannt.</translation>
    </message>
    <message>
        <source>As many as in the run before</source>
        <translation>So viele wie im Lauf davor</translation>
    </message>
    <message>
        <source>%1 more than in the run before</source>
        <translation>%1 mehr als im Lauf davor</translation>
    </message>
    <message>
        <source>%1 fewer than in the run before</source>
        <translation>%1 weniger als im Lauf davor</translation>
    </message>
    <message>
        <source>The device does not have that many.</source>
        <translation>So viele hat der Baustein nicht.</translation>
    </message>
    <message>
        <source>The device database has no total for this.</source>
        <translation>Die Bausteindatenbank nennt dafür keine Gesamtzahl.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Resource</source>
        <translation>Ressource</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Belegt</translation>
    </message>
    <message>
        <source>In the device</source>
        <translation>Im Baustein</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Anteil</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
</context>
<context>
    <name>Workbench::ResultPage</name>
    <message>
        <source>Change the &amp;IP…</source>
        <translation>&amp;IP ändern…</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>Ressourcen</translation>
    </message>
    <message>
        <source>Primitives</source>
        <translation>Primitive</translation>
    </message>
    <message>
        <source>Ports of the netlist</source>
        <translation>Ports der Netzliste</translation>
    </message>
    <message>
        <source>Ctrl and the wheel zoom</source>
        <translation>Strg und das Mausrad zoomen</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Ports</translation>
    </message>
    <message>
        <source>Share of the device</source>
        <translation>Anteil am Baustein</translation>
    </message>
    <message>
        <source>Files (double-click to open)</source>
        <translation>Dateien (Doppelklick öffnet)</translation>
    </message>
    <message>
        <source>Opens its dialog again; OK there generates it anew</source>
        <translation>Öffnet erneut ihren Dialog; OK generiert sie dort neu</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%1 für %2</translation>
    </message>
    <message>
        <source>%1 The run took %2 s.</source>
        <translation>%1 Der Lauf dauerte %2 s.</translation>
    </message>
    <message>
        <source>Ports (%1)</source>
        <translation>Ports (%1)</translation>
    </message>
    <message numerus="yes">
        <source>Primitives (%n kinds)</source>
        <translation>
            <numerusform>Primitive (%n Art)</numerusform>
            <numerusform>Primitive (%n Arten)</numerusform>
        </translation>
    </message>
    <message>
        <source>The project still lists %1, of an earlier run in the other language. Both describe the same module.</source>
        <translation>Das Projekt führt noch %1 aus einem früheren Lauf in der anderen Sprache. Beide beschreiben dasselbe Modul.</translation>
    </message>
    <message>
        <source>&amp;Remove from Project</source>
        <translation>Aus dem Projekt entfe&amp;rnen</translation>
    </message>
    <message>
        <source>This run ended on %1.</source>
        <translation>Dieser Lauf endete am %1.</translation>
    </message>
    <message>
        <source>Its files are as it left them.</source>
        <translation>Seine Dateien sind unverändert.</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (fehlt)</translation>
    </message>
    <message>
        <source>Changed since then: %1.</source>
        <translation>Seither geändert: %1.</translation>
    </message>
    <message>
        <source>%1 (of an earlier run)</source>
        <translation>%1 (aus einem früheren Lauf)</translation>
    </message>
</context>
<context>
    <name>Workbench::SessionKeeper</name>
    <message numerus="yes">
        <source>%n tab(s) of the last time cannot be shown again: %1, …</source>
        <translation>
            <numerusform>%n Tab vom letzten Mal kann nicht wieder angezeigt werden: %1, …</numerusform>
            <numerusform>%n Tabs vom letzten Mal können nicht wieder angezeigt werden: %1, …</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tab(s) of the last time cannot be shown again: %1.</source>
        <translation>
            <numerusform>%n Tab vom letzten Mal kann nicht wieder angezeigt werden: %1.</numerusform>
            <numerusform>%n Tabs vom letzten Mal können nicht wieder angezeigt werden: %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Workbench::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation>Stan&amp;dardwerte wiederherstellen</translation>
    </message>
    <message>
        <source>That of the desktop</source>
        <translation>Die des Desktops</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>The fixed font of the desktop</source>
        <translation>Die Festbreitenschrift des Desktops</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Durchsuchen…</translation>
    </message>
    <message>
        <source>%1 The program on PATH is used.</source>
        <translation>%1 Das Programm auf dem PATH wird verwendet.</translation>
    </message>
    <message>
        <source>%f stands for the file, %l for the line</source>
        <translation>%f steht für die Datei, %l für die Zeile</translation>
    </message>
    <message>
        <source>No program &quot;%1&quot; is on PATH</source>
        <translation>Kein Programm „%1“ auf dem PATH</translation>
    </message>
    <message>
        <source>From PATH: %1</source>
        <translation>Vom PATH: %1</translation>
    </message>
    <message>
        <source>This program is used</source>
        <translation>Dieses Programm wird verwendet</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Browse for %1</source>
        <translation>Durchsuchen: %1</translation>
    </message>
</context>
<context>
    <name>Workbench::SideBySide</name>
    <message>
        <source> (no line end)</source>
        <translation> (kein Zeilenende)</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>The text is too long to be shown side by side.</source>
        <translation>Der Text ist zu lang für die Gegenüberstellung.</translation>
    </message>
</context>
<context>
    <name>Workbench::SimulationPage</name>
    <message>
        <source>&amp;Run</source>
        <translation>Sta&amp;rten</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>S&amp;toppen</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>Durch&amp;suchen…</translation>
    </message>
    <message>
        <source>&amp;Waves</source>
        <translation>Wellenf&amp;ormen</translation>
    </message>
    <message>
        <source>Sen&amp;d</source>
        <translation>Se&amp;nden</translation>
    </message>
    <message>
        <source>&amp;Open Waves</source>
        <translation>Wellenformen ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Simulate %1</source>
        <translation>Simulation von %1</translation>
    </message>
    <message>
        <source>Ends the simulation</source>
        <translation>Beendet die Simulation</translation>
    </message>
    <message>
        <source>What the simulation starts from</source>
        <translation>Wovon die Simulation ausgeht</translation>
    </message>
    <message>
        <source>Files that the simulation starts from</source>
        <translation>Dateien, von denen die Simulation ausgeht</translation>
    </message>
    <message>
        <source>Choose what the simulation starts from</source>
        <translation>Wählen, wovon die Simulation ausgeht</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Simulator</translation>
    </message>
    <message>
        <source>Terminal that is shown</source>
        <translation>Angezeigtes Terminal</translation>
    </message>
    <message>
        <source>Line for the UART</source>
        <translation>Zeile für den UART</translation>
    </message>
    <message>
        <source>a line for the program</source>
        <translation>eine Zeile für das Programm</translation>
    </message>
    <message>
        <source>Sends the line, and a line feed; keys that are typed in the terminal are sent at once</source>
        <translation>Sendet die Zeile und einen Zeilenvorschub; im Terminal getippte Tasten werden sofort gesendet</translation>
    </message>
    <message>
        <source>Messages of the simulation</source>
        <translation>Meldungen der Simulation</translation>
    </message>
    <message>
        <source>%1 (%2);;All files (*)</source>
        <translation>%1 (%2);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Simulates the IP with the program</source>
        <translation>Simuliert die IP mit dem Programm</translation>
    </message>
    <message>
        <source>%1, with &quot;;&quot; between them</source>
        <translation>%1, durch „;“ getrennt</translation>
    </message>
    <message>
        <source>Writes all signals into &quot;%1&quot; beside the configuration; takes time</source>
        <translation>Schreibt alle Signale in „%1“ neben der Konfiguration; braucht Zeit</translation>
    </message>
    <message>
        <source>The last run has written no waves</source>
        <translation>Der letzte Lauf hat keine Wellenformen geschrieben</translation>
    </message>
    <message>
        <source>UART%1</source>
        <translation>UART%1</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstiges</translation>
    </message>
    <message>
        <source>Terminal of %1</source>
        <translation>Terminal von %1</translation>
    </message>
    <message>
        <source>What the program says by other ways</source>
        <translation>Was das Programm auf anderen Wegen ausgibt</translation>
    </message>
    <message>
        <source>Bytes of the UART</source>
        <translation>Bytes des UART</translation>
    </message>
    <message>
        <source>Lines by semihosting and of the simulator</source>
        <translation>Zeilen per Semihosting und vom Simulator</translation>
    </message>
    <message>
        <source>The program that simulates says what cannot be read: %1</source>
        <translation>Die Ausgabe des simulierenden Programms ist nicht lesbar: %1</translation>
    </message>
    <message>
        <source>There are more messages.</source>
        <translation>Es gibt weitere Meldungen.</translation>
    </message>
    <message>
        <source>The simulation does not take what is typed.</source>
        <translation>Die Simulation nimmt die Eingabe nicht an.</translation>
    </message>
    <message>
        <source>The waves are in &quot;%1&quot;. The program gtkwave shows them; the Debian package gtkwave has it.</source>
        <translation>Die Wellenformen stehen in „%1“. Das Programm gtkwave zeigt sie an; das Debian-Paket gtkwave enthält es.</translation>
    </message>
</context>
<context>
    <name>Workbench::SimulationPages</name>
    <message>
        <source>Simulate %1</source>
        <translation>Simulation von %1</translation>
    </message>
</context>
<context>
    <name>Workbench::SoftwareBrowser</name>
    <message>
        <source>The document</source>
        <translation>Das Dokument</translation>
    </message>
</context>
<context>
    <name>Workbench::SoftwareDocument</name>
    <message>
        <source>The document is too large to be laid out.</source>
        <translation>Das Dokument ist zu groß für die Darstellung.</translation>
    </message>
    <message>
        <source>The document is nested too deep to be laid out.</source>
        <translation>Das Dokument ist für die Darstellung zu tief verschachtelt.</translation>
    </message>
</context>
<context>
    <name>Workbench::SoftwareModel</name>
    <message>
        <source>no files</source>
        <translation>keine Dateien</translation>
    </message>
    <message>
        <source>%1 of %2 fresh</source>
        <translation>%1 von %2 aktuell</translation>
    </message>
    <message>
        <source>Of earlier exports</source>
        <translation>Aus früheren Exporten</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>In the folder</source>
        <translation>Im Ordner</translation>
    </message>
</context>
<context>
    <name>Workbench::SoftwarePage</name>
    <message>
        <source>&amp;Browse…</source>
        <translation>Durch&amp;suchen…</translation>
    </message>
    <message>
        <source>Chec&amp;k</source>
        <translation>P&amp;rüfen</translation>
    </message>
    <message>
        <source>Save as P&amp;DF…</source>
        <translation>Als PD&amp;F speichern…</translation>
    </message>
    <message>
        <source>E&amp;xport</source>
        <translation>E&amp;xportieren</translation>
    </message>
    <message>
        <source>Hand-off of %1</source>
        <translation>Übergabe von %1</translation>
    </message>
    <message>
        <source>Parts of the page</source>
        <translation>Teile der Seite</translation>
    </message>
    <message>
        <source>File&amp;s</source>
        <translation>Date&amp;ien</translation>
    </message>
    <message>
        <source>Pro&amp;gram</source>
        <translation>Pro&amp;gramm</translation>
    </message>
    <message>
        <source>A program for the memory of the IP</source>
        <translation>Ein Programm für den Speicher der IP</translation>
    </message>
    <message>
        <source>Formats and their files</source>
        <translation>Formate und ihre Dateien</translation>
    </message>
    <message>
        <source>For&amp;mats to export:</source>
        <translation>For&amp;mate für den Export:</translation>
    </message>
    <message>
        <source>Contents of the file</source>
        <translation>Inhalt der Datei</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Compares the files in the folder with those shown; writes nothing</source>
        <translation>Vergleicht die Dateien im Ordner mit den angezeigten; schreibt nichts</translation>
    </message>
    <message>
        <source>Puts the document of the selected format on pages of A4</source>
        <translation>Setzt das Dokument des ausgewählten Formats auf Seiten in A4</translation>
    </message>
    <message>
        <source>Writes the files of the chosen formats into the folder</source>
        <translation>Schreibt die Dateien der gewählten Formate in den Ordner</translation>
    </message>
    <message>
        <source>Folde&amp;r:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>There is no document %1 among the files.</source>
        <translation>Unter den Dateien gibt es kein Dokument %1.</translation>
    </message>
    <message>
        <source>The document has no heading &quot;%1&quot;.</source>
        <translation>Das Dokument hat keine Überschrift „%1“.</translation>
    </message>
    <message>
        <source>The IP is for the device %1 now. The files shown are made anew.</source>
        <translation>Die IP ist jetzt für den Baustein %1. Die angezeigten Dateien sind neu erzeugt.</translation>
    </message>
    <message>
        <source>The configuration has changed. The files shown are made anew.</source>
        <translation>Die Konfiguration hat sich geändert. Die angezeigten Dateien sind neu erzeugt.</translation>
    </message>
    <message>
        <source>For the device %1.</source>
        <translation>Für den Baustein %1.</translation>
    </message>
    <message>
        <source>Standard: %1.</source>
        <translation>Norm: %1.</translation>
    </message>
    <message>
        <source>Checked by: %1.</source>
        <translation>Geprüft durch: %1.</translation>
    </message>
    <message>
        <source>This configuration gives the format nothing to hand on.</source>
        <translation>Diese Konfiguration gibt dem Format nichts zu übergeben.</translation>
    </message>
    <message>
        <source>No format has this file any more.</source>
        <translation>Kein Format hat diese Datei mehr.</translation>
    </message>
    <message>
        <source>%1 is no text: %2 bytes.</source>
        <translation>%1 ist kein Text: %2 Bytes.</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more bytes</source>
        <translation>
            <numerusform>… und %n weiteres Byte</numerusform>
            <numerusform>… und %n weitere Bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. Made when it is needed; other files in it stay as they are</source>
        <translation>%1. Wird bei Bedarf angelegt; andere Dateien darin bleiben, wie sie sind</translation>
    </message>
    <message>
        <source>A folder, or one beside the configuration</source>
        <translation>Ein Ordner, auch relativ zur Konfiguration</translation>
    </message>
    <message numerus="yes">
        <source>%n more in the tool tip.</source>
        <translation>
            <numerusform>%n weiterer im Tooltip.</numerusform>
            <numerusform>%n weitere im Tooltip.</numerusform>
        </translation>
    </message>
    <message>
        <source>All files are there as they are made now.</source>
        <translation>Alle Dateien sind so vorhanden, wie sie jetzt erzeugt werden.</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>stale</source>
        <translation>veraltet</translation>
    </message>
    <message>
        <source>edited</source>
        <translation>bearbeitet</translation>
    </message>
    <message>
        <source>left over</source>
        <translation>übrig</translation>
    </message>
    <message>
        <source>left over and edited</source>
        <translation>übrig und bearbeitet</translation>
    </message>
    <message>
        <source>Of %1 files: %2.</source>
        <translation>Von %1 Dateien: %2.</translation>
    </message>
    <message>
        <source>All files were there already; nothing is written.</source>
        <translation>Alle Dateien waren schon vorhanden; nichts ist geschrieben.</translation>
    </message>
    <message numerus="yes">
        <source>%n files are written, %1 were there already.</source>
        <translation>
            <numerusform>%n Datei ist geschrieben, %1 waren schon vorhanden.</numerusform>
            <numerusform>%n Dateien sind geschrieben, %1 waren schon vorhanden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files of earlier exports are removed.</source>
        <translation>
            <numerusform>%n Datei früherer Exporte ist entfernt.</numerusform>
            <numerusform>%n Dateien früherer Exporte sind entfernt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Folder for the files</source>
        <translation>Ordner für die Dateien</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF-Dokumente (*.pdf)</translation>
    </message>
    <message>
        <source>The document is in &quot;%1&quot;.</source>
        <translation>Das Dokument steht in „%1“.</translation>
    </message>
    <message>
        <source>About the format</source>
        <translation>Über das Format</translation>
    </message>
</context>
<context>
    <name>Workbench::SoftwarePages</name>
    <message>
        <source>Hand-off of %1</source>
        <translation>Übergabe von %1</translation>
    </message>
</context>
<context>
    <name>Workbench::StartPage</name>
    <message>
        <source>Tarvo Workbench</source>
        <translation>Tarvo Workbench</translation>
    </message>
    <message>
        <source>Configure an IP for a device, generate it, and add the netlist to your design.</source>
        <translation>Konfigurieren Sie eine IP für einen Baustein, generieren Sie sie, und nehmen Sie die Netzliste in Ihren Entwurf auf.</translation>
    </message>
    <message>
        <source>New project…</source>
        <translation>Neues Projekt…</translation>
    </message>
    <message>
        <source>Choose a folder, a name and a device.</source>
        <translation>Wählen Sie Ordner, Namen und Baustein.</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen…</translation>
    </message>
    <message>
        <source>A project (.tvproj), an IP configuration (.ipc) or a source file.</source>
        <translation>Ein Projekt (.tvproj), eine IP-Konfiguration (.ipc) oder eine Quelldatei.</translation>
    </message>
    <message>
        <source>Open the example: %1…</source>
        <translation>Beispiel öffnen: %1…</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Letzte Projekte</translation>
    </message>
    <message>
        <source>No device chosen</source>
        <translation>Kein Baustein gewählt</translation>
    </message>
    <message>
        <source>Change an IP of this project</source>
        <translation>Eine IP dieses Projekts ändern</translation>
    </message>
    <message>
        <source>Opens its dialog again; OK there generates it anew.</source>
        <translation>Öffnet erneut ihren Dialog; OK generiert sie dort neu.</translation>
    </message>
    <message>
        <source>Simulate %1</source>
        <translation>Simulation von %1</translation>
    </message>
    <message>
        <source>Runs a program on it before there is hardware.</source>
        <translation>Führt ein Programm darauf aus, bevor es Hardware gibt.</translation>
    </message>
    <message>
        <source>Next: create an IP</source>
        <translation>Nächster Schritt: eine IP erzeugen</translation>
    </message>
    <message>
        <source>Create another IP</source>
        <translation>Weitere IP erzeugen</translation>
    </message>
    <message>
        <source>%1 %2…</source>
        <translation>%1 %2…</translation>
    </message>
    <message>
        <source>No IP in the catalogue supports this device. Click the device in the status bar to choose another one.</source>
        <translation>Keine IP im Katalog unterstützt diesen Baustein. Ein Klick auf den Baustein in der Statusleiste wählt einen anderen.</translation>
    </message>
    <message>
        <source>Its dialog opens. Configure the IP there and press OK: it is generated into a folder of this project, the netlist joins the sources, and the results are shown here.</source>
        <translation>Ihr Dialog öffnet sich. Konfigurieren Sie dort die IP, und drücken Sie OK: Sie wird in einen Ordner dieses Projekts generiert, die Netzliste kommt zu den Quellen, und die Ergebnisse erscheinen hier.</translation>
    </message>
    <message>
        <source>Bring back a configuration</source>
        <translation>Konfiguration zurückholen</translation>
    </message>
    <message>
        <source>%1…</source>
        <translation>%1…</translation>
    </message>
    <message>
        <source>All kept configurations…</source>
        <translation>Alle aufbewahrten Konfigurationen…</translation>
    </message>
    <message>
        <source>New subsystem: %1 %2…</source>
        <translation>Neues Subsystem: %1 %2…</translation>
    </message>
    <message>
        <source>Choose a device; then its dialog opens.</source>
        <translation>Wählen Sie einen Baustein; dann öffnet sich der Dialog.</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>Erste Schritte</translation>
    </message>
    <message numerus="yes">
        <source>%n more are in the tree of the project.</source>
        <translation>
            <numerusform>%n weitere ist im Baum des Projekts.</numerusform>
            <numerusform>%n weitere sind im Baum des Projekts.</numerusform>
        </translation>
    </message>
    <message>
        <source>Go on with a draft</source>
        <translation>Mit einem Zwischenstand weiterarbeiten</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>What was replaced, or was in a dialog that was left without OK.</source>
        <translation>Was ersetzt wurde oder in einem Dialog stand, der ohne OK verlassen wurde.</translation>
    </message>
</context>
<context>
    <name>Workbench::StepsModel</name>
    <message>
        <source>What the file has</source>
        <translation>Was in der Datei steht</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>%1 (now)</source>
        <translation>%1 (jetzt)</translation>
    </message>
    <message>
        <source>%1 (undone)</source>
        <translation>%1 (rückgängig)</translation>
    </message>
</context>
<context>
    <name>Workbench::StepsPanel</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Back to What the File Has</source>
        <translation>&amp;Zurück zum Stand der Datei</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Schritte</translation>
    </message>
    <message>
        <source>Enter or a double click goes to a step</source>
        <translation>Eingabetaste oder Doppelklick geht zu einem Schritt</translation>
    </message>
    <message>
        <source>The dialog failed when it was asked for its steps: %1.</source>
        <translation>Der Dialog ist bei der Frage nach seinen Schritten gescheitert: %1.</translation>
    </message>
    <message>
        <source>The steps that the dialog tells cannot be used: %1.</source>
        <translation>Die Schritte, die der Dialog nennt, sind nicht brauchbar: %1.</translation>
    </message>
    <message>
        <source>The steps that the dialog tells cannot be used: %1 of %2 are said to count.</source>
        <translation>Die Schritte, die der Dialog nennt, sind nicht brauchbar: %1 von %2 sollen zählen.</translation>
    </message>
    <message>
        <source>The dialog failed when it was to go to a step: %1.</source>
        <translation>Der Dialog ist beim Gehen zu einem Schritt gescheitert: %1.</translation>
    </message>
    <message>
        <source>The dialog cannot go there now.</source>
        <translation>Der Dialog kann jetzt nicht dorthin gehen.</translation>
    </message>
</context>
<context>
    <name>Workbench::TabMenu</name>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Close the &amp;Others</source>
        <translation>&amp;Andere schließen</translation>
    </message>
    <message>
        <source>Show in the P&amp;roject</source>
        <translation>Im P&amp;rojekt anzeigen</translation>
    </message>
    <message>
        <source>Open the &amp;Folder</source>
        <translation>&amp;Ordner öffnen</translation>
    </message>
    <message>
        <source>Copy the &amp;Path</source>
        <translation>&amp;Pfad kopieren</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutWindow</name>
    <message>
        <source>About %1</source>
        <extracomment>The title of the About window; %1 is the product&apos;s name.</extracomment>
        <translation>Info zu %1</translation>
    </message>
    <message>
        <source>Close, minimize and full-screen windows right in Mission Control, with buttons on every window and the shortcuts you already know.</source>
        <translation>Schließen, minimieren und maximieren Sie Fenster direkt in Mission Control: mit Knöpfen an jedem Fenster und den Tastenkürzeln, die Sie schon kennen.</translation>
    </message>
</context>
<context>
    <name>AccessStep</name>
    <message>
        <source>One permission, then you&apos;re done</source>
        <translation>Eine Erlaubnis genügt</translation>
    </message>
    <message>
        <source>Corvane can now see which window you point at.</source>
        <translation>Corvane kann jetzt sehen, auf welches Fenster Sie zeigen.</translation>
    </message>
    <message>
        <source>macOS asks you first before Corvane can tell which window the pointer is on. Nothing is recorded or sent anywhere.</source>
        <translation>macOS fragt Sie zuerst, bevor Corvane erkennen kann, auf welchem Fenster der Zeiger steht. Nichts wird aufgezeichnet oder gesendet.</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Barrierefreiheit</translation>
    </message>
    <message>
        <source>Allowed in System Settings.</source>
        <translation>In den Systemeinstellungen erlaubt.</translation>
    </message>
    <message>
        <source>Opens Privacy &amp; Security in System Settings.</source>
        <translation>Öffnet „Datenschutz &amp; Sicherheit“ in den Systemeinstellungen.</translation>
    </message>
    <message>
        <source>Switch on Corvane in the list in System Settings.</source>
        <translation>Schalten Sie Corvane in der Liste in den Systemeinstellungen ein.</translation>
    </message>
    <message>
        <source>Switch on Corvane in the list. Not there? Drag in the tile under System Settings.</source>
        <translation>Schalten Sie Corvane in der Liste ein. Nicht da? Ziehen Sie die Kachel unter den Systemeinstellungen hinein.</translation>
    </message>
    <message>
        <source>Open Again</source>
        <translation>Erneut öffnen</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Systemeinstellungen öffnen</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Corvane is not running.</source>
        <translation>Corvane läuft nicht.</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
</context>
<context>
    <name>BackButton</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>ButtonSize</name>
    <message>
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Groß</translation>
    </message>
</context>
<context>
    <name>ButtonsPage</name>
    <message>
        <source>Buttons</source>
        <translation>Knöpfe</translation>
    </message>
    <message>
        <source>look, theme, colour, color, size, minimize, full screen, maximize</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>aussehen, design, farbe, größe, minimieren, vollbild, maximieren</translation>
    </message>
</context>
<context>
    <name>ButtonsPane</name>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Minimize button</source>
        <translation>Minimieren-Knopf</translation>
    </message>
    <message>
        <source>Next to Close, which is always there.</source>
        <translation>Neben „Schließen“, das immer da ist.</translation>
    </message>
    <message>
        <source>Full screen button</source>
        <translation>Vollbild-Knopf</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>For the full-screen button and ⌘F.</source>
        <translation>Für den Knopf und ⌘F.</translation>
    </message>
    <message>
        <source>Own Space</source>
        <translation>Eigener Space</translation>
    </message>
    <message>
        <source>Fill Screen</source>
        <translation>Ausfüllen</translation>
    </message>
</context>
<context>
    <name>ButtonsPreview</name>
    <message>
        <source>Preview of the buttons</source>
        <translation>Vorschau der Knöpfe</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Browser</translation>
    </message>
    <message>
        <source>Start page</source>
        <translation>Startseite</translation>
    </message>
</context>
<context>
    <name>ConstructionPlan</name>
    <message>
        <source>Pill %1 × %2</source>
        <extracomment>A note on a drawing: a pill-shaped part, %1 units wide and %2 high.</extracomment>
        <translation>Pille %1 × %2</translation>
    </message>
    <message>
        <source>Circle %1</source>
        <extracomment>A note on a drawing: a circle, %1 units across.</extracomment>
        <translation>Kreis %1</translation>
    </message>
    <message>
        <source>Gap %1</source>
        <extracomment>A note on a drawing: the room between two parts, %1 units wide.</extracomment>
        <translation>Abstand %1</translation>
    </message>
    <message>
        <source>The %1 mark</source>
        <extracomment>The title of a drawing of a product&apos;s mark; %1 is the product&apos;s name.</extracomment>
        <translation>%1-Zeichen</translation>
    </message>
</context>
<context>
    <name>CustomizeStep</name>
    <message>
        <source>Make it yours</source>
        <translation>Ganz nach Wunsch</translation>
    </message>
    <message>
        <source>Optional. Pick a look and a size; you can change them any time in Settings.</source>
        <translation>Freiwillig. Aussehen und Größe lassen sich in den Einstellungen ändern.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Minimize button</source>
        <translation>Minimieren-Knopf</translation>
    </message>
    <message>
        <source>Full screen button</source>
        <translation>Vollbild-Knopf</translation>
    </message>
    <message>
        <source>Looks Good</source>
        <translation>Sieht gut aus</translation>
    </message>
    <message>
        <source>Keep the Defaults</source>
        <translation>Standard behalten</translation>
    </message>
</context>
<context>
    <name>DemoCell</name>
    <message>
        <source>%1 window, %2, full screen</source>
        <extracomment>%1 is the name of an application, %2 the title of its window.</extracomment>
        <translation>%1-Fenster, %2, Vollbild</translation>
    </message>
    <message>
        <source>%1 window, %2</source>
        <extracomment>%1 is the name of an application, %2 the title of its window.</extracomment>
        <translation>%1-Fenster, %2</translation>
    </message>
    <message>
        <source>Use the actions to close, minimize or full-screen it.</source>
        <translation>Mit den Aktionen können Sie es schließen, minimieren oder im Vollbild zeigen.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
</context>
<context>
    <name>DemoModel</name>
    <message>
        <source>Browser</source>
        <translation>Browser</translation>
    </message>
    <message>
        <source>Start page</source>
        <translation>Startseite</translation>
    </message>
    <message>
        <source>Ideas</source>
        <translation>Ideen</translation>
    </message>
    <message>
        <source>Sketches</source>
        <translation>Skizzen</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Aufgaben</translation>
    </message>
    <message>
        <source>This week</source>
        <translation>Diese Woche</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>zsh</source>
        <translation>zsh</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Player</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Mediathek</translation>
    </message>
    <message>
        <source>Docs</source>
        <translation>Doku</translation>
    </message>
    <message>
        <source>Point at a window first.</source>
        <translation>Zeigen Sie zuerst auf ein Fenster.</translation>
    </message>
</context>
<context>
    <name>DoneStep</name>
    <message>
        <source>Swipe up with three fingers or press F3 to open Mission Control, then hover any window.</source>
        <translation>Streichen Sie mit drei Fingern nach oben oder drücken Sie F3, um Mission Control zu öffnen, und zeigen Sie dann auf ein Fenster.</translation>
    </message>
    <message>
        <source> Corvane starts at login.</source>
        <translation> Corvane startet bei der Anmeldung.</translation>
    </message>
    <message>
        <source>Open Mission Control</source>
        <translation>Mission Control öffnen</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Don&apos;t start at login</source>
        <translation>Nicht bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Nicht jetzt</translation>
    </message>
</context>
<context>
    <name>DragTileContent</name>
    <message>
        <source>Not in the list? Drag me in.</source>
        <translation>Nicht in der Liste? Ziehen Sie mich hinein.</translation>
    </message>
    <message>
        <source>Drop Corvane onto the Accessibility list above.</source>
        <translation>Legen Sie Corvane oben auf der Liste „Barrierefreiheit“ ab.</translation>
    </message>
    <message>
        <source>Drop Corvane onto the Accessibility list.</source>
        <translation>Legen Sie Corvane auf der Liste „Barrierefreiheit“ ab.</translation>
    </message>
</context>
<context>
    <name>EBAboutScreen</name>
    <message>
        <source>Check for Updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>Website ↗︎</source>
        <translation>Website ↗︎</translation>
    </message>
    <message>
        <source>Made by Vexmoor</source>
        <translation>Von Vexmoor</translation>
    </message>
</context>
<context>
    <name>EBSearchField</name>
    <message>
        <source>Clear search</source>
        <translation>Suche leeren</translation>
    </message>
</context>
<context>
    <name>EBSettingsWindowController</name>
    <message>
        <source>%1 Settings</source>
        <extracomment>The title of the settings window; %1 is the product&apos;s name.</extracomment>
        <translation>%1-Einstellungen</translation>
    </message>
</context>
<context>
    <name>EBStatus</name>
    <message>
        <source>Allowed</source>
        <translation>Erlaubt</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
</context>
<context>
    <name>EBStepList</name>
    <message>
        <source>Step %1 of %2, %3, done</source>
        <extracomment>Read aloud; %1 is the step&apos;s number, %2 how many there are, %3 its title.</extracomment>
        <translation>Schritt %1 von %2, %3, erledigt</translation>
    </message>
    <message>
        <source>Step %1 of %2, %3, current</source>
        <translation>Schritt %1 von %2, %3, aktuell</translation>
    </message>
    <message>
        <source>Step %1 of %2, %3</source>
        <translation>Schritt %1 von %2, %3</translation>
    </message>
</context>
<context>
    <name>FullScreenBadge</name>
    <message>
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>login, startup, menu bar, icon, accessibility, permission, guide</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>anmeldung, start, autostart, menüleiste, symbol, barrierefreiheit, erlaubnis, berechtigung, einführung</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>Start at login</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Waiting for your OK in System Settings › General › Login Items.</source>
        <translation>Wartet auf Ihre Zustimmung in Systemeinstellungen › Allgemein › Anmeldeobjekte.</translation>
    </message>
    <message>
        <source>So the buttons are there whenever you open Mission Control.</source>
        <translation>Damit die Knöpfe da sind, sooft Sie Mission Control öffnen.</translation>
    </message>
    <message>
        <source>Login Items</source>
        <translation>Anmeldeobjekte</translation>
    </message>
    <message>
        <source>Allow Corvane there to finish.</source>
        <translation>Erlauben Sie dort Corvane, um abzuschließen.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Show in the menu bar</source>
        <translation>In der Menüleiste zeigen</translation>
    </message>
    <message>
        <source>Open Corvane from Applications to come back here.</source>
        <translation>Öffnen Sie Corvane aus den Programmen, um hierher zurückzukehren.</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Barrierefreiheit</translation>
    </message>
    <message>
        <source>Corvane can see which window you point at.</source>
        <translation>Corvane kann sehen, auf welches Fenster Sie zeigen.</translation>
    </message>
    <message>
        <source>Needed to see which window you point at in Mission Control.</source>
        <translation>Nötig, um zu sehen, auf welches Fenster Sie in Mission Control zeigen.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Welcome guide</source>
        <translation>Einführung</translation>
    </message>
    <message>
        <source>Try it again in a pretend Mission Control.</source>
        <translation>Üben Sie noch einmal in einem nachgestellten Mission Control.</translation>
    </message>
    <message>
        <source>Show Guide</source>
        <translation>Einführung zeigen</translation>
    </message>
</context>
<context>
    <name>GuideWindowController</name>
    <message>
        <source>Welcome to Corvane</source>
        <translation>Willkommen bei Corvane</translation>
    </message>
</context>
<context>
    <name>ImportDrop</name>
    <message>
        <source>The settings were imported.</source>
        <translation>Die Einstellungen wurden importiert.</translation>
    </message>
</context>
<context>
    <name>ImportOffer</name>
    <message>
        <source>Changed: %1</source>
        <extracomment>%1 is the names of saved layouts. They stay, but what they put back is another.</extracomment>
        <translation>Geändert: %1</translation>
    </message>
</context>
<context>
    <name>ImportSheet</name>
    <message>
        <source>Import these settings?</source>
        <translation>Diese Einstellungen importieren?</translation>
    </message>
    <message>
        <source>Nothing to import</source>
        <translation>Nichts zu importieren</translation>
    </message>
    <message>
        <source>Everything in this file is set already.</source>
        <translation>Alles aus dieser Datei ist schon eingestellt.</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <extracomment>%1 is the value that a setting has before an import.</extracomment>
        <translation>Jetzt: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
</context>
<context>
    <name>KeySymbols</name>
    <message>
        <source> to </source>
        <translation> bis </translation>
    </message>
</context>
<context>
    <name>LayoutNameField</name>
    <message>
        <source>Save name</source>
        <translation>Namen sichern</translation>
    </message>
</context>
<context>
    <name>LayoutPreview</name>
    <message numerus="yes">
        <source>%n windows: %1</source>
        <extracomment>%1 stands for the names of the windows&apos; applications.</extracomment>
        <translation>
            <numerusform>%n Fenster: %1</numerusform>
            <numerusform>%n Fenster: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LayoutRow</name>
    <message>
        <source>Name of layout %1</source>
        <translation>Name der Anordnung %1</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The place of a layout in the list, and how many there are.</extracomment>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>LayoutsModel</name>
    <message>
        <source>layout %1</source>
        <extracomment>%1 is the place of a layout without a name in the list.</extracomment>
        <translation>Anordnung %1</translation>
    </message>
</context>
<context>
    <name>LayoutsPage</name>
    <message>
        <source>Layouts</source>
        <translation>Anordnungen</translation>
    </message>
    <message>
        <source>snap, arrange, tile, window, layout, shelf, gap</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>einrasten, anordnen, kachel, fenster, anordnung, layout, leiste, abstand</translation>
    </message>
</context>
<context>
    <name>LayoutsPane</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Kleine</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Große</translation>
    </message>
    <message>
        <source>Left or right half</source>
        <translation>Linke oder rechte Hälfte</translation>
    </message>
    <message>
        <source>Again: two thirds, then a third.</source>
        <translation>Nochmals: zwei Drittel, dann ein Drittel.</translation>
    </message>
    <message>
        <source>Top or bottom half</source>
        <translation>Obere oder untere Hälfte</translation>
    </message>
    <message>
        <source>On a side: a quarter.</source>
        <translation>An einer Seite: ein Viertel.</translation>
    </message>
    <message>
        <source>Fill the screen</source>
        <translation>Bildschirm ausfüllen</translation>
    </message>
    <message>
        <source>Put a saved layout back</source>
        <translation>Gesicherte Anordnung wiederherstellen</translation>
    </message>
    <message>
        <source>Snap and arrange windows</source>
        <translation>Fenster einrasten und anordnen</translation>
    </message>
    <message>
        <source>In Mission Control: snap the window under the pointer, compose layouts and put them back.</source>
        <translation>In Mission Control: das Fenster unter dem Zeiger einrasten lassen, Anordnungen zusammenstellen und wiederherstellen.</translation>
    </message>
    <message>
        <source>Layouts shelf</source>
        <translation>Leiste für Anordnungen</translation>
    </message>
    <message>
        <source>A Layouts handle at the bottom of Mission Control. Point at it to open your layouts and templates.</source>
        <translation>Ein Griff „Anordnungen“ am unteren Rand von Mission Control. Zeigen Sie darauf, um Ihre Anordnungen und Vorlagen zu öffnen.</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Abstände</translation>
    </message>
    <message>
        <source>Space between arranged windows.</source>
        <translation>Platz zwischen angeordneten Fenstern.</translation>
    </message>
    <message>
        <source>Open apps that aren&apos;t running</source>
        <translation>Nicht laufende Apps öffnen</translation>
    </message>
    <message>
        <source>When a saved layout is put back.</source>
        <translation>Wenn eine gesicherte Anordnung wiederhergestellt wird.</translation>
    </message>
    <message>
        <source>Saved layouts</source>
        <translation>Gesicherte Anordnungen</translation>
    </message>
    <message>
        <source>In Mission Control</source>
        <translation>In Mission Control</translation>
    </message>
    <message>
        <source>Point at a window first. Click a layout on the shelf to put its windows back, ⌥-click to delete it. Click a template, then the windows that go in it, or drag a window onto a slot.</source>
        <translation>Zeigen Sie zuerst auf ein Fenster. Klicken Sie in der Leiste auf eine Anordnung, um ihre Fenster wiederherzustellen, mit ⌥-Klick löschen Sie sie. Klicken Sie auf eine Vorlage und dann auf die Fenster dafür, oder ziehen Sie ein Fenster auf einen Platz.</translation>
    </message>
</context>
<context>
    <name>MarkConstruction</name>
    <message>
        <source>The %1 mark drawn on its grid</source>
        <extracomment>Read aloud; %1 is a product&apos;s name.</extracomment>
        <translation>Das Zeichen von %1 auf seinem Raster</translation>
    </message>
</context>
<context>
    <name>OnboardingFlow</name>
    <message>
        <source>Click the cross, or press ⌘W to close it.</source>
        <translation>Klicken Sie auf das Kreuz oder drücken Sie ⌘W, um es zu schließen.</translation>
    </message>
    <message>
        <source>Click a button, or press ⌘W to close it.</source>
        <translation>Klicken Sie auf einen Knopf oder drücken Sie ⌘W, um es zu schließen.</translation>
    </message>
    <message>
        <source>Now hover another window and press ⌘M to minimize it.</source>
        <translation>Zeigen Sie nun auf ein anderes Fenster und drücken Sie ⌘M, um es zu minimieren.</translation>
    </message>
    <message>
        <source>Press ⌘F on a window to take it full screen.</source>
        <translation>Drücken Sie ⌘F auf einem Fenster, um es im Vollbild zu zeigen.</translation>
    </message>
    <message>
        <source>That&apos;s all there is to it. It works just like this in Mission Control.</source>
        <translation>Mehr ist nicht dabei. In Mission Control geht es genauso.</translation>
    </message>
</context>
<context>
    <name>OnboardingStep</name>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Üben</translation>
    </message>
    <message>
        <source>Permission</source>
        <translation>Erlaubnis</translation>
    </message>
    <message>
        <source>Make it yours</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Step %1 · %2</source>
        <translation>Schritt %1 · %2</translation>
    </message>
</context>
<context>
    <name>PageArea</name>
    <message>
        <source>Settings · %1</source>
        <extracomment>The line above a page&apos;s heading; %1 is the page&apos;s number.</extracomment>
        <translation>Einstellungen · %1</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Meta</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
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
        <source>Up</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Runter</translation>
    </message>
</context>
<context>
    <name>RemovalLine</name>
    <message>
        <source>Deleted “%1”.</source>
        <extracomment>%1 is the name of a layout.</extracomment>
        <translation>„%1“ gelöscht.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
</context>
<context>
    <name>SavedLayouts</name>
    <message>
        <source>None yet</source>
        <translation>Noch keine</translation>
    </message>
    <message>
        <source>In Mission Control, click Save current, or a template.</source>
        <translation>Klicken Sie in Mission Control auf „Aktuelle sichern“ oder auf eine Vorlage.</translation>
    </message>
</context>
<context>
    <name>SettingWords</name>
    <message>
        <source>Look</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Shortcut %1</source>
        <extracomment>%1 is the keys of a shortcut.</extracomment>
        <translation>Tastenkürzel %1</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
</context>
<context>
    <name>SettingsAppDelegate</name>
    <message>
        <source>Your settings are gone.</source>
        <translation>Ihre Einstellungen sind weg.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Start Fresh</source>
        <translation>Neu beginnen</translation>
    </message>
</context>
<context>
    <name>SettingsTransfer</name>
    <message>
        <source>There is nothing to save settings in.</source>
        <translation>Es gibt keinen Ort, an dem sich Einstellungen sichern lassen.</translation>
    </message>
    <message>
        <source>%1 Nothing was imported.</source>
        <extracomment>%1 is a sentence that says why.</extracomment>
        <translation>%1 Es wurde nichts importiert.</translation>
    </message>
</context>
<context>
    <name>ShortcutVocabulary</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close all windows of the app</source>
        <translation>Alle Fenster der App schließen</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Hide app</source>
        <translation>App ausblenden</translation>
    </message>
    <message>
        <source>Hide other apps</source>
        <translation>Andere Apps ausblenden</translation>
    </message>
    <message>
        <source>Force-quit app</source>
        <translation>App sofort beenden</translation>
    </message>
    <message>
        <source>%1 closed</source>
        <extracomment>%1 is the title of a window; so it is below where a window is minimized or full screen.</extracomment>
        <translation>%1 geschlossen</translation>
    </message>
    <message>
        <source>%1 minimized</source>
        <translation>%1 minimiert</translation>
    </message>
    <message>
        <source>%1 full screen</source>
        <translation>%1 im Vollbild</translation>
    </message>
    <message>
        <source>%1 no longer full screen</source>
        <translation>%1 nicht mehr im Vollbild</translation>
    </message>
    <message>
        <source>All windows of %1 closed</source>
        <extracomment>%1 is the name of an application; so it is below.</extracomment>
        <translation>Alle Fenster von %1 geschlossen</translation>
    </message>
    <message>
        <source>%1 hidden</source>
        <translation>%1 ausgeblendet</translation>
    </message>
    <message>
        <source>All but %1 hidden</source>
        <translation>Alle außer %1 ausgeblendet</translation>
    </message>
    <message>
        <source>%1 quit</source>
        <translation>%1 beendet</translation>
    </message>
</context>
<context>
    <name>ShortcutsModel</name>
    <message>
        <source>Close window</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>Close all windows of the app</source>
        <translation>Alle Fenster der App schließen</translation>
    </message>
    <message>
        <source>Minimize window</source>
        <translation>Fenster minimieren</translation>
    </message>
    <message>
        <source>Full screen / maximize window</source>
        <translation>Vollbild / Fenster maximieren</translation>
    </message>
    <message>
        <source>Hide app</source>
        <translation>App ausblenden</translation>
    </message>
    <message>
        <source>Hide other apps</source>
        <translation>Andere Apps ausblenden</translation>
    </message>
    <message>
        <source>Force-quit app</source>
        <translation>App sofort beenden</translation>
    </message>
</context>
<context>
    <name>ShortcutsPage</name>
    <message>
        <source>Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>keyboard, hotkey, close, hide, quit, minimize</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>tastatur, taste, kurzbefehl, schließen, ausblenden, beenden, minimieren</translation>
    </message>
</context>
<context>
    <name>ShortcutsPane</name>
    <message>
        <source>They work only while Mission Control is open, on the window under the pointer.</source>
        <translation>Sie wirken nur, solange Mission Control offen ist, auf das Fenster unter dem Zeiger.</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>%1
Version %2</source>
        <extracomment>%1 is the product&apos;s name, %2 its version.</extracomment>
        <translation>%1
Version %2</translation>
    </message>
</context>
<context>
    <name>StoreTrouble</name>
    <message>
        <source>Changes last only until you close this window: there is nothing to save them in.</source>
        <translation>Änderungen gelten nur, bis Sie dieses Fenster schließen: Es gibt nichts, worin sie gesichert werden könnten.</translation>
    </message>
    <message>
        <source>Changes can&apos;t be saved: the settings service doesn&apos;t answer.</source>
        <translation>Änderungen können nicht gesichert werden: Der Einstellungsdienst antwortet nicht.</translation>
    </message>
    <message>
        <source>Changes can&apos;t be saved: the disk is full or read-only.</source>
        <translation>Änderungen können nicht gesichert werden: Der Datenträger ist voll oder schreibgeschützt.</translation>
    </message>
    <message>
        <source>This can&apos;t be changed: your administrator has locked it.</source>
        <translation>Das kann nicht geändert werden: Ihre Systemverwaltung hat es gesperrt.</translation>
    </message>
    <message>
        <source>Changes can&apos;t be saved: the settings service stores them elsewhere.</source>
        <translation>Änderungen können nicht gesichert werden: Der Einstellungsdienst legt sie anderswo ab.</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>Classic</source>
        <translation>Klassik</translation>
    </message>
    <message>
        <source>The familiar macOS red, yellow and green.</source>
        <translation>Das vertraute Rot, Gelb und Grün von macOS.</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Sanft</translation>
    </message>
    <message>
        <source>The same colors, calmer and less bright.</source>
        <translation>Dieselben Farben, ruhiger und weniger hell.</translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation>Grafit</translation>
    </message>
    <message>
        <source>Shades of grey. Tell them apart by shape.</source>
        <translation>Graustufen. Sie unterscheiden sich durch ihre Form.</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Pure black and white.</source>
        <translation>Reines Schwarz und Weiß.</translation>
    </message>
    <message>
        <source>No color</source>
        <translation>Farblos</translation>
    </message>
    <message>
        <source>Clear outlines, nothing colored.</source>
        <translation>Klare Umrisse, nichts farbig.</translation>
    </message>
</context>
<context>
    <name>ThemeTile</name>
    <message>
        <source>%1 look</source>
        <extracomment>%1 is the title of a theme of the buttons.</extracomment>
        <translation>Aussehen „%1“</translation>
    </message>
</context>
<context>
    <name>TryItStep</name>
    <message>
        <source>Give it a try</source>
        <translation>Probieren Sie es aus</translation>
    </message>
    <message>
        <source>Reset windows</source>
        <translation>Fenster zurücksetzen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Close, minimize and full-screen windows right in Mission Control. Hover a window for its buttons, or use the shortcuts you already know.</source>
        <translation>Schließen, minimieren und maximieren Sie Fenster direkt in Mission Control. Zeigen Sie auf ein Fenster, um seine Knöpfe zu sehen, oder nutzen Sie die Tastenkürzel, die Sie schon kennen.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Los geht’s</translation>
    </message>
    <message>
        <source>Skip setup</source>
        <translation>Einrichtung überspringen</translation>
    </message>
</context>
<context>
    <name>WindowChrome</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Vergrößern</translation>
    </message>
</context>
</TS>

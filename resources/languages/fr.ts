<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AboutWindow</name>
    <message>
        <source>About %1</source>
        <extracomment>The title of the About window; %1 is the product&apos;s name.</extracomment>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>Close, minimize and full-screen windows right in Mission Control, with buttons on every window and the shortcuts you already know.</source>
        <translation>Fermez, réduisez et passez en plein écran vos fenêtres directement dans Mission Control, avec des boutons sur chaque fenêtre et les raccourcis que vous connaissez déjà.</translation>
    </message>
</context>
<context>
    <name>AccessStep</name>
    <message>
        <source>One permission, then you&apos;re done</source>
        <translation>Une autorisation suffit</translation>
    </message>
    <message>
        <source>Corvane can now see which window you point at.</source>
        <translation>Corvane peut maintenant voir quelle fenêtre vous pointez.</translation>
    </message>
    <message>
        <source>macOS asks you first before Corvane can tell which window the pointer is on. Nothing is recorded or sent anywhere.</source>
        <translation>macOS demande votre accord avant que Corvane sache sur quelle fenêtre est le pointeur. Rien n’est enregistré ni envoyé.</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accessibilité</translation>
    </message>
    <message>
        <source>Allowed in System Settings.</source>
        <translation>Autorisé dans les Réglages Système.</translation>
    </message>
    <message>
        <source>Opens Privacy &amp; Security in System Settings.</source>
        <translation>Ouvre «&#xa0;Confidentialité et sécurité&#xa0;» dans les Réglages Système.</translation>
    </message>
    <message>
        <source>Switch on Corvane in the list in System Settings.</source>
        <translation>Activez Corvane dans la liste des Réglages Système.</translation>
    </message>
    <message>
        <source>Switch on Corvane in the list. Not there? Drag in the tile under System Settings.</source>
        <translation>Activez Corvane dans la liste. Absent&#xa0;? Faites-y glisser la vignette sous les Réglages Système.</translation>
    </message>
    <message>
        <source>Open Again</source>
        <translation>Rouvrir</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Ouvrir les Réglages</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Passer</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Corvane is not running.</source>
        <translation>Corvane n’est pas en cours d’exécution.</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
</context>
<context>
    <name>BackButton</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>ButtonSize</name>
    <message>
        <source>Small</source>
        <translation>Petit</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyen</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grand</translation>
    </message>
</context>
<context>
    <name>ButtonsPage</name>
    <message>
        <source>Buttons</source>
        <translation>Boutons</translation>
    </message>
    <message>
        <source>look, theme, colour, color, size, minimize, full screen, maximize</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>apparence, thème, couleur, taille, réduire, plein écran, agrandir</translation>
    </message>
</context>
<context>
    <name>ButtonsPane</name>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Minimize button</source>
        <translation>Bouton Réduire</translation>
    </message>
    <message>
        <source>Next to Close, which is always there.</source>
        <translation>À côté de «&#xa0;Fermer&#xa0;», toujours présent.</translation>
    </message>
    <message>
        <source>Full screen button</source>
        <translation>Bouton Plein écran</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>For the full-screen button and ⌘F.</source>
        <translation>Le bouton et ⌘F.</translation>
    </message>
    <message>
        <source>Own Space</source>
        <translation>Espace dédié</translation>
    </message>
    <message>
        <source>Fill Screen</source>
        <translation>Remplir l’écran</translation>
    </message>
</context>
<context>
    <name>ButtonsPreview</name>
    <message>
        <source>Preview of the buttons</source>
        <translation>Aperçu des boutons</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Navigateur</translation>
    </message>
    <message>
        <source>Start page</source>
        <translation>Accueil</translation>
    </message>
</context>
<context>
    <name>ConstructionPlan</name>
    <message>
        <source>Pill %1 × %2</source>
        <extracomment>A note on a drawing: a pill-shaped part, %1 units wide and %2 high.</extracomment>
        <translation>Pilule %1 × %2</translation>
    </message>
    <message>
        <source>Circle %1</source>
        <extracomment>A note on a drawing: a circle, %1 units across.</extracomment>
        <translation>Cercle %1</translation>
    </message>
    <message>
        <source>Gap %1</source>
        <extracomment>A note on a drawing: the room between two parts, %1 units wide.</extracomment>
        <translation>Écart %1</translation>
    </message>
    <message>
        <source>The %1 mark</source>
        <extracomment>The title of a drawing of a product&apos;s mark; %1 is the product&apos;s name.</extracomment>
        <translation>Symbole %1</translation>
    </message>
</context>
<context>
    <name>CustomizeStep</name>
    <message>
        <source>Make it yours</source>
        <translation>À votre goût</translation>
    </message>
    <message>
        <source>Optional. Pick a look and a size; you can change them any time in Settings.</source>
        <translation>Facultatif. L’apparence et la taille se changent aussi dans les Réglages.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Minimize button</source>
        <translation>Bouton Réduire</translation>
    </message>
    <message>
        <source>Full screen button</source>
        <translation>Bouton Plein écran</translation>
    </message>
    <message>
        <source>Looks Good</source>
        <translation>Parfait</translation>
    </message>
    <message>
        <source>Keep the Defaults</source>
        <translation>Garder par défaut</translation>
    </message>
</context>
<context>
    <name>DemoCell</name>
    <message>
        <source>%1 window, %2, full screen</source>
        <extracomment>%1 is the name of an application, %2 the title of its window.</extracomment>
        <translation>Fenêtre %1, %2, plein écran</translation>
    </message>
    <message>
        <source>%1 window, %2</source>
        <extracomment>%1 is the name of an application, %2 the title of its window.</extracomment>
        <translation>Fenêtre %1, %2</translation>
    </message>
    <message>
        <source>Use the actions to close, minimize or full-screen it.</source>
        <translation>Utilisez les actions pour la fermer, la réduire ou la passer en plein écran.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
</context>
<context>
    <name>DemoModel</name>
    <message>
        <source>Browser</source>
        <translation>Navigateur</translation>
    </message>
    <message>
        <source>Start page</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Ideas</source>
        <translation>Idées</translation>
    </message>
    <message>
        <source>Sketches</source>
        <translation>Croquis</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Tâches</translation>
    </message>
    <message>
        <source>This week</source>
        <translation>Cette semaine</translation>
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
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothèque</translation>
    </message>
    <message>
        <source>Docs</source>
        <translation>Docs</translation>
    </message>
    <message>
        <source>Point at a window first.</source>
        <translation>Pointez d’abord une fenêtre.</translation>
    </message>
</context>
<context>
    <name>DoneStep</name>
    <message>
        <source>Swipe up with three fingers or press F3 to open Mission Control, then hover any window.</source>
        <translation>Balayez vers le haut avec trois doigts ou appuyez sur F3 pour ouvrir Mission Control, puis survolez une fenêtre.</translation>
    </message>
    <message>
        <source> Corvane starts at login.</source>
        <translation> Corvane démarre à l’ouverture de session.</translation>
    </message>
    <message>
        <source>Open Mission Control</source>
        <translation>Ouvrir Mission Control</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Don&apos;t start at login</source>
        <translation>Ne pas démarrer à l’ouverture</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Pas maintenant</translation>
    </message>
</context>
<context>
    <name>DragTileContent</name>
    <message>
        <source>Not in the list? Drag me in.</source>
        <translation>Absent de la liste&#xa0;? Faites-moi glisser dedans.</translation>
    </message>
    <message>
        <source>Drop Corvane onto the Accessibility list above.</source>
        <translation>Déposez Corvane sur la liste «&#xa0;Accessibilité&#xa0;» ci-dessus.</translation>
    </message>
    <message>
        <source>Drop Corvane onto the Accessibility list.</source>
        <translation>Déposez Corvane sur la liste «&#xa0;Accessibilité&#xa0;».</translation>
    </message>
</context>
<context>
    <name>EBAboutScreen</name>
    <message>
        <source>Check for Updates</source>
        <translation>Rechercher des mises à jour</translation>
    </message>
    <message>
        <source>Website ↗︎</source>
        <translation>Site web ↗︎</translation>
    </message>
    <message>
        <source>Made by Vexmoor</source>
        <translation>Par Vexmoor</translation>
    </message>
</context>
<context>
    <name>EBSearchField</name>
    <message>
        <source>Clear search</source>
        <translation>Effacer la recherche</translation>
    </message>
</context>
<context>
    <name>EBSettingsWindowController</name>
    <message>
        <source>%1 Settings</source>
        <extracomment>The title of the settings window; %1 is the product&apos;s name.</extracomment>
        <translation>Réglages de %1</translation>
    </message>
</context>
<context>
    <name>EBStatus</name>
    <message>
        <source>Allowed</source>
        <translation>Autorisé</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
</context>
<context>
    <name>EBStepList</name>
    <message>
        <source>Step %1 of %2, %3, done</source>
        <extracomment>Read aloud; %1 is the step&apos;s number, %2 how many there are, %3 its title.</extracomment>
        <translation>Étape %1 sur %2, %3, terminée</translation>
    </message>
    <message>
        <source>Step %1 of %2, %3, current</source>
        <translation>Étape %1 sur %2, %3, en cours</translation>
    </message>
    <message>
        <source>Step %1 of %2, %3</source>
        <translation>Étape %1 sur %2, %3</translation>
    </message>
</context>
<context>
    <name>FullScreenBadge</name>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>login, startup, menu bar, icon, accessibility, permission, guide</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>session, ouverture, démarrage, barre des menus, icône, accessibilité, autorisation, guide</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>Start at login</source>
        <translation>Démarrer à l’ouverture de session</translation>
    </message>
    <message>
        <source>Waiting for your OK in System Settings › General › Login Items.</source>
        <translation>En attente de votre accord dans Réglages Système › Général › Ouverture.</translation>
    </message>
    <message>
        <source>So the buttons are there whenever you open Mission Control.</source>
        <translation>Pour que les boutons soient là chaque fois que vous ouvrez Mission Control.</translation>
    </message>
    <message>
        <source>Login Items</source>
        <translation>Ouverture</translation>
    </message>
    <message>
        <source>Allow Corvane there to finish.</source>
        <translation>Autorisez-y Corvane pour terminer.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Show in the menu bar</source>
        <translation>Afficher dans la barre des menus</translation>
    </message>
    <message>
        <source>Open Corvane from Applications to come back here.</source>
        <translation>Ouvrez Corvane depuis Applications pour revenir ici.</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accessibilité</translation>
    </message>
    <message>
        <source>Corvane can see which window you point at.</source>
        <translation>Corvane peut voir quelle fenêtre vous pointez.</translation>
    </message>
    <message>
        <source>Needed to see which window you point at in Mission Control.</source>
        <translation>Nécessaire pour voir quelle fenêtre vous pointez dans Mission Control.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Ouvrir les Réglages</translation>
    </message>
    <message>
        <source>Welcome guide</source>
        <translation>Guide de bienvenue</translation>
    </message>
    <message>
        <source>Try it again in a pretend Mission Control.</source>
        <translation>Réessayez dans un Mission Control fictif.</translation>
    </message>
    <message>
        <source>Show Guide</source>
        <translation>Afficher le guide</translation>
    </message>
</context>
<context>
    <name>GuideWindowController</name>
    <message>
        <source>Welcome to Corvane</source>
        <translation>Bienvenue dans Corvane</translation>
    </message>
</context>
<context>
    <name>ImportDrop</name>
    <message>
        <source>The settings were imported.</source>
        <translation>Les réglages ont été importés.</translation>
    </message>
</context>
<context>
    <name>ImportOffer</name>
    <message>
        <source>Changed: %1</source>
        <extracomment>%1 is the names of saved layouts. They stay, but what they put back is another.</extracomment>
        <translation>Modifié&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ImportSheet</name>
    <message>
        <source>Import these settings?</source>
        <translation>Importer ces réglages&#xa0;?</translation>
    </message>
    <message>
        <source>Nothing to import</source>
        <translation>Rien à importer</translation>
    </message>
    <message>
        <source>Everything in this file is set already.</source>
        <translation>Tout ce que contient ce fichier est déjà réglé.</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <extracomment>%1 is the value that a setting has before an import.</extracomment>
        <translation>Actuellement&#xa0;: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
</context>
<context>
    <name>KeySymbols</name>
    <message>
        <source> to </source>
        <translation> à </translation>
    </message>
</context>
<context>
    <name>LayoutNameField</name>
    <message>
        <source>Save name</source>
        <translation>Enregistrer le nom</translation>
    </message>
</context>
<context>
    <name>LayoutPreview</name>
    <message numerus="yes">
        <source>%n windows: %1</source>
        <extracomment>%1 stands for the names of the windows&apos; applications.</extracomment>
        <translation>
            <numerusform>%n fenêtre&#xa0;: %1</numerusform>
            <numerusform>%n fenêtres&#xa0;: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LayoutRow</name>
    <message>
        <source>Name of layout %1</source>
        <translation>Nom de la disposition %1</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Supprimer %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The place of a layout in the list, and how many there are.</extracomment>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>LayoutsModel</name>
    <message>
        <source>layout %1</source>
        <extracomment>%1 is the place of a layout without a name in the list.</extracomment>
        <translation>disposition %1</translation>
    </message>
</context>
<context>
    <name>LayoutsPage</name>
    <message>
        <source>Layouts</source>
        <translation>Dispositions</translation>
    </message>
    <message>
        <source>snap, arrange, tile, window, layout, shelf, gap</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>ancrer, disposer, mosaïque, fenêtre, disposition, étagère, espacement</translation>
    </message>
</context>
<context>
    <name>LayoutsPane</name>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Petits</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grands</translation>
    </message>
    <message>
        <source>Left or right half</source>
        <translation>Moitié gauche ou droite</translation>
    </message>
    <message>
        <source>Again: two thirds, then a third.</source>
        <translation>Encore&#xa0;: deux tiers, puis un tiers.</translation>
    </message>
    <message>
        <source>Top or bottom half</source>
        <translation>Moitié haute ou basse</translation>
    </message>
    <message>
        <source>On a side: a quarter.</source>
        <translation>Sur un côté&#xa0;: un quart.</translation>
    </message>
    <message>
        <source>Fill the screen</source>
        <translation>Remplir l’écran</translation>
    </message>
    <message>
        <source>Put a saved layout back</source>
        <translation>Rétablir une disposition enregistrée</translation>
    </message>
    <message>
        <source>Snap and arrange windows</source>
        <translation>Ancrer et disposer les fenêtres</translation>
    </message>
    <message>
        <source>In Mission Control: snap the window under the pointer, compose layouts and put them back.</source>
        <translation>Dans Mission Control&#xa0;: ancrez la fenêtre sous le pointeur, composez des dispositions et rétablissez-les.</translation>
    </message>
    <message>
        <source>Layouts shelf</source>
        <translation>Étagère des dispositions</translation>
    </message>
    <message>
        <source>A Layouts handle at the bottom of Mission Control. Point at it to open your layouts and templates.</source>
        <translation>Une poignée «&#xa0;Dispositions&#xa0;» au bas de Mission Control. Pointez-la pour ouvrir vos dispositions et modèles.</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Espacements</translation>
    </message>
    <message>
        <source>Space between arranged windows.</source>
        <translation>Espace entre les fenêtres disposées.</translation>
    </message>
    <message>
        <source>Open apps that aren&apos;t running</source>
        <translation>Ouvrir les applications non lancées</translation>
    </message>
    <message>
        <source>When a saved layout is put back.</source>
        <translation>Lorsqu’une disposition enregistrée est rétablie.</translation>
    </message>
    <message>
        <source>Saved layouts</source>
        <translation>Dispositions enregistrées</translation>
    </message>
    <message>
        <source>In Mission Control</source>
        <translation>Dans Mission Control</translation>
    </message>
    <message>
        <source>Point at a window first. Click a layout on the shelf to put its windows back, ⌥-click to delete it. Click a template, then the windows that go in it, or drag a window onto a slot.</source>
        <translation>Pointez d’abord une fenêtre. Cliquez sur une disposition de l’étagère pour remettre ses fenêtres en place, ⌥-clic pour la supprimer. Cliquez sur un modèle, puis sur les fenêtres à y mettre, ou faites glisser une fenêtre sur un emplacement.</translation>
    </message>
</context>
<context>
    <name>MarkConstruction</name>
    <message>
        <source>The %1 mark drawn on its grid</source>
        <extracomment>Read aloud; %1 is a product&apos;s name.</extracomment>
        <translation>Le symbole de %1 tracé sur sa grille</translation>
    </message>
</context>
<context>
    <name>OnboardingFlow</name>
    <message>
        <source>Click the cross, or press ⌘W to close it.</source>
        <translation>Cliquez sur la croix ou appuyez sur ⌘W pour la fermer.</translation>
    </message>
    <message>
        <source>Click a button, or press ⌘W to close it.</source>
        <translation>Cliquez sur un bouton ou appuyez sur ⌘W pour la fermer.</translation>
    </message>
    <message>
        <source>Now hover another window and press ⌘M to minimize it.</source>
        <translation>Survolez maintenant une autre fenêtre et appuyez sur ⌘M pour la réduire.</translation>
    </message>
    <message>
        <source>Press ⌘F on a window to take it full screen.</source>
        <translation>Appuyez sur ⌘F sur une fenêtre pour la passer en plein écran.</translation>
    </message>
    <message>
        <source>That&apos;s all there is to it. It works just like this in Mission Control.</source>
        <translation>Voilà, c’est tout. Cela fonctionne de la même façon dans Mission Control.</translation>
    </message>
</context>
<context>
    <name>OnboardingStep</name>
    <message>
        <source>Welcome</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Essai</translation>
    </message>
    <message>
        <source>Permission</source>
        <translation>Autorisation</translation>
    </message>
    <message>
        <source>Make it yours</source>
        <translation>À votre goût</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Step %1 · %2</source>
        <translation>Étape %1 · %2</translation>
    </message>
</context>
<context>
    <name>PageArea</name>
    <message>
        <source>Settings · %1</source>
        <extracomment>The line above a page&apos;s heading; %1 is the page&apos;s number.</extracomment>
        <translation>Réglages · %1</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Meta</source>
        <translation>Méta</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bas</translation>
    </message>
</context>
<context>
    <name>RemovalLine</name>
    <message>
        <source>Deleted “%1”.</source>
        <extracomment>%1 is the name of a layout.</extracomment>
        <translation>«&#xa0;%1&#xa0;» supprimé.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>SavedLayouts</name>
    <message>
        <source>None yet</source>
        <translation>Aucune pour l’instant</translation>
    </message>
    <message>
        <source>In Mission Control, click Save current, or a template.</source>
        <translation>Dans Mission Control, cliquez sur «&#xa0;Enregistrer l’actuelle&#xa0;» ou sur un modèle.</translation>
    </message>
</context>
<context>
    <name>SettingWords</name>
    <message>
        <source>Look</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Shortcut %1</source>
        <extracomment>%1 is the keys of a shortcut.</extracomment>
        <translation>Raccourci %1</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
</context>
<context>
    <name>SettingsAppDelegate</name>
    <message>
        <source>Your settings are gone.</source>
        <translation>Vos réglages ont disparu.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Start Fresh</source>
        <translation>Repartir de zéro</translation>
    </message>
</context>
<context>
    <name>SettingsTransfer</name>
    <message>
        <source>There is nothing to save settings in.</source>
        <translation>Il n’y a rien où enregistrer les réglages.</translation>
    </message>
    <message>
        <source>%1 Nothing was imported.</source>
        <extracomment>%1 is a sentence that says why.</extracomment>
        <translation>%1 Rien n’a été importé.</translation>
    </message>
</context>
<context>
    <name>ShortcutVocabulary</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close all windows of the app</source>
        <translation>Fermer toutes les fenêtres de l’application</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Hide app</source>
        <translation>Masquer l’application</translation>
    </message>
    <message>
        <source>Hide other apps</source>
        <translation>Masquer les autres applications</translation>
    </message>
    <message>
        <source>Force-quit app</source>
        <translation>Forcer l’application à quitter</translation>
    </message>
    <message>
        <source>%1 closed</source>
        <extracomment>%1 is the title of a window; so it is below where a window is minimized or full screen.</extracomment>
        <translation>%1&#xa0;: fenêtre fermée</translation>
    </message>
    <message>
        <source>%1 minimized</source>
        <translation>%1&#xa0;: fenêtre réduite</translation>
    </message>
    <message>
        <source>%1 full screen</source>
        <translation>%1&#xa0;: plein écran</translation>
    </message>
    <message>
        <source>%1 no longer full screen</source>
        <translation>%1&#xa0;: fin du plein écran</translation>
    </message>
    <message>
        <source>All windows of %1 closed</source>
        <extracomment>%1 is the name of an application; so it is below.</extracomment>
        <translation>%1&#xa0;: toutes les fenêtres fermées</translation>
    </message>
    <message>
        <source>%1 hidden</source>
        <translation>%1&#xa0;: application masquée</translation>
    </message>
    <message>
        <source>All but %1 hidden</source>
        <translation>Tout est masqué sauf %1</translation>
    </message>
    <message>
        <source>%1 quit</source>
        <translation>%1&#xa0;: application quittée</translation>
    </message>
</context>
<context>
    <name>ShortcutsModel</name>
    <message>
        <source>Close window</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>Close all windows of the app</source>
        <translation>Fermer toutes les fenêtres de l’application</translation>
    </message>
    <message>
        <source>Minimize window</source>
        <translation>Réduire la fenêtre</translation>
    </message>
    <message>
        <source>Full screen / maximize window</source>
        <translation>Plein écran / agrandir la fenêtre</translation>
    </message>
    <message>
        <source>Hide app</source>
        <translation>Masquer l’application</translation>
    </message>
    <message>
        <source>Hide other apps</source>
        <translation>Masquer les autres applications</translation>
    </message>
    <message>
        <source>Force-quit app</source>
        <translation>Forcer l’application à quitter</translation>
    </message>
</context>
<context>
    <name>ShortcutsPage</name>
    <message>
        <source>Shortcuts</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>keyboard, hotkey, close, hide, quit, minimize</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>clavier, touche, fermer, masquer, quitter, réduire</translation>
    </message>
</context>
<context>
    <name>ShortcutsPane</name>
    <message>
        <source>They work only while Mission Control is open, on the window under the pointer.</source>
        <translation>Ils ne fonctionnent que lorsque Mission Control est ouvert, sur la fenêtre sous le pointeur.</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
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
        <translation>Les modifications ne durent que jusqu’à la fermeture de cette fenêtre&#xa0;: il n’y a rien où les enregistrer.</translation>
    </message>
    <message>
        <source>Changes can&apos;t be saved: the settings service doesn&apos;t answer.</source>
        <translation>Impossible d’enregistrer les modifications&#xa0;: le service des paramètres ne répond pas.</translation>
    </message>
    <message>
        <source>Changes can&apos;t be saved: the disk is full or read-only.</source>
        <translation>Impossible d’enregistrer les modifications&#xa0;: le disque est plein ou en lecture seule.</translation>
    </message>
    <message>
        <source>This can&apos;t be changed: your administrator has locked it.</source>
        <translation>Cela ne peut pas être modifié&#xa0;: votre administrateur l’a verrouillé.</translation>
    </message>
    <message>
        <source>Changes can&apos;t be saved: the settings service stores them elsewhere.</source>
        <translation>Impossible d’enregistrer les modifications&#xa0;: le service des paramètres les stocke ailleurs.</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>Classic</source>
        <translatorcomment>« Classique » est plus large que les 53 points d’un aspect.</translatorcomment>
        <translation>Usuel</translation>
    </message>
    <message>
        <source>The familiar macOS red, yellow and green.</source>
        <translation>Les rouge, jaune et vert familiers de macOS.</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Doux</translation>
    </message>
    <message>
        <source>The same colors, calmer and less bright.</source>
        <translation>Les mêmes couleurs, plus calmes et moins vives.</translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation>Graphite</translation>
    </message>
    <message>
        <source>Shades of grey. Tell them apart by shape.</source>
        <translation>Nuances de gris, à distinguer par la forme.</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Pure black and white.</source>
        <translation>Noir et blanc purs.</translation>
    </message>
    <message>
        <source>No color</source>
        <translation>Incolore</translation>
    </message>
    <message>
        <source>Clear outlines, nothing colored.</source>
        <translation>Des contours nets, rien de coloré.</translation>
    </message>
</context>
<context>
    <name>ThemeTile</name>
    <message>
        <source>%1 look</source>
        <extracomment>%1 is the title of a theme of the buttons.</extracomment>
        <translation>Apparence «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>TryItStep</name>
    <message>
        <source>Give it a try</source>
        <translation>Essayez par vous-même</translation>
    </message>
    <message>
        <source>Reset windows</source>
        <translation>Réinitialiser les fenêtres</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Close, minimize and full-screen windows right in Mission Control. Hover a window for its buttons, or use the shortcuts you already know.</source>
        <translation>Fermez, réduisez et passez en plein écran vos fenêtres directement dans Mission Control. Survolez une fenêtre pour voir ses boutons ou utilisez les raccourcis que vous connaissez déjà.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Commencer</translation>
    </message>
    <message>
        <source>Skip setup</source>
        <translation>Passer la configuration</translation>
    </message>
</context>
<context>
    <name>WindowChrome</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Agrandir</translation>
    </message>
</context>
</TS>

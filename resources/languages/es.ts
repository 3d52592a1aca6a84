<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AboutWindow</name>
    <message>
        <source>About %1</source>
        <extracomment>The title of the About window; %1 is the product&apos;s name.</extracomment>
        <translation>Acerca de %1</translation>
    </message>
    <message>
        <source>Close, minimize and full-screen windows right in Mission Control, with buttons on every window and the shortcuts you already know.</source>
        <translation>Cierre, minimice y ponga a pantalla completa las ventanas directamente en Mission Control, con botones en cada ventana y los atajos que ya conoce.</translation>
    </message>
</context>
<context>
    <name>AccessStep</name>
    <message>
        <source>One permission, then you&apos;re done</source>
        <translation>Basta un permiso</translation>
    </message>
    <message>
        <source>Corvane can now see which window you point at.</source>
        <translation>Corvane ya puede ver qué ventana señala usted.</translation>
    </message>
    <message>
        <source>macOS asks you first before Corvane can tell which window the pointer is on. Nothing is recorded or sent anywhere.</source>
        <translation>macOS le pregunta antes de que Corvane pueda saber sobre qué ventana está el puntero. No se graba ni se envía nada.</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accesibilidad</translation>
    </message>
    <message>
        <source>Allowed in System Settings.</source>
        <translation>Permitido en Ajustes del Sistema.</translation>
    </message>
    <message>
        <source>Opens Privacy &amp; Security in System Settings.</source>
        <translation>Abre «Privacidad y seguridad» en Ajustes del Sistema.</translation>
    </message>
    <message>
        <source>Switch on Corvane in the list in System Settings.</source>
        <translation>Active Corvane en la lista de Ajustes del Sistema.</translation>
    </message>
    <message>
        <source>Switch on Corvane in the list. Not there? Drag in the tile under System Settings.</source>
        <translation>Active Corvane en la lista. ¿No está? Arrastre la ficha que hay bajo Ajustes del Sistema.</translation>
    </message>
    <message>
        <source>Open Again</source>
        <translation>Abrir de nuevo</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Abrir Ajustes</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Corvane is not running.</source>
        <translation>Corvane no está en ejecución.</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Intentar de nuevo</translation>
    </message>
</context>
<context>
    <name>BackButton</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>ButtonSize</name>
    <message>
        <source>Small</source>
        <translation>Pequeño</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mediano</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grande</translation>
    </message>
</context>
<context>
    <name>ButtonsPage</name>
    <message>
        <source>Buttons</source>
        <translation>Botones</translation>
    </message>
    <message>
        <source>look, theme, colour, color, size, minimize, full screen, maximize</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>aspecto, tema, color, tamaño, minimizar, pantalla completa, maximizar</translation>
    </message>
</context>
<context>
    <name>ButtonsPane</name>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Minimize button</source>
        <translation>Botón de minimizar</translation>
    </message>
    <message>
        <source>Next to Close, which is always there.</source>
        <translation>Junto a «Cerrar», que siempre está.</translation>
    </message>
    <message>
        <source>Full screen button</source>
        <translation>Botón de pantalla completa</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>For the full-screen button and ⌘F.</source>
        <translation>El botón y ⌘F.</translation>
    </message>
    <message>
        <source>Own Space</source>
        <translation>Espacio propio</translation>
    </message>
    <message>
        <source>Fill Screen</source>
        <translation>Llenar pantalla</translation>
    </message>
</context>
<context>
    <name>ButtonsPreview</name>
    <message>
        <source>Preview of the buttons</source>
        <translation>Vista previa de los botones</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Navegador</translation>
    </message>
    <message>
        <source>Start page</source>
        <translation>Inicio</translation>
    </message>
</context>
<context>
    <name>ConstructionPlan</name>
    <message>
        <source>Pill %1 × %2</source>
        <extracomment>A note on a drawing: a pill-shaped part, %1 units wide and %2 high.</extracomment>
        <translation>Píldora %1 × %2</translation>
    </message>
    <message>
        <source>Circle %1</source>
        <extracomment>A note on a drawing: a circle, %1 units across.</extracomment>
        <translation>Círculo %1</translation>
    </message>
    <message>
        <source>Gap %1</source>
        <extracomment>A note on a drawing: the room between two parts, %1 units wide.</extracomment>
        <translation>Hueco %1</translation>
    </message>
    <message>
        <source>The %1 mark</source>
        <extracomment>The title of a drawing of a product&apos;s mark; %1 is the product&apos;s name.</extracomment>
        <translation>Símbolo %1</translation>
    </message>
</context>
<context>
    <name>CustomizeStep</name>
    <message>
        <source>Make it yours</source>
        <translation>A su gusto</translation>
    </message>
    <message>
        <source>Optional. Pick a look and a size; you can change them any time in Settings.</source>
        <translation>Opcional. El aspecto y el tamaño también se cambian en Ajustes.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Minimize button</source>
        <translation>Botón de minimizar</translation>
    </message>
    <message>
        <source>Full screen button</source>
        <translation>Botón de pantalla completa</translation>
    </message>
    <message>
        <source>Looks Good</source>
        <translation>Se ve bien</translation>
    </message>
    <message>
        <source>Keep the Defaults</source>
        <translation>Dejar lo predeterminado</translation>
    </message>
</context>
<context>
    <name>DemoCell</name>
    <message>
        <source>%1 window, %2, full screen</source>
        <extracomment>%1 is the name of an application, %2 the title of its window.</extracomment>
        <translation>Ventana de %1, %2, pantalla completa</translation>
    </message>
    <message>
        <source>%1 window, %2</source>
        <extracomment>%1 is the name of an application, %2 the title of its window.</extracomment>
        <translation>Ventana de %1, %2</translation>
    </message>
    <message>
        <source>Use the actions to close, minimize or full-screen it.</source>
        <translation>Use las acciones para cerrarla, minimizarla o ponerla a pantalla completa.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Pantalla completa</translation>
    </message>
</context>
<context>
    <name>DemoModel</name>
    <message>
        <source>Browser</source>
        <translation>Navegador</translation>
    </message>
    <message>
        <source>Start page</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Ideas</source>
        <translation>Ideas</translation>
    </message>
    <message>
        <source>Sketches</source>
        <translation>Bocetos</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Tareas</translation>
    </message>
    <message>
        <source>This week</source>
        <translation>Esta semana</translation>
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
        <translation>Reproductor</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Biblioteca</translation>
    </message>
    <message>
        <source>Docs</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Point at a window first.</source>
        <translation>Señale primero una ventana.</translation>
    </message>
</context>
<context>
    <name>DoneStep</name>
    <message>
        <source>Swipe up with three fingers or press F3 to open Mission Control, then hover any window.</source>
        <translation>Deslice tres dedos hacia arriba o pulse F3 para abrir Mission Control y luego señale una ventana.</translation>
    </message>
    <message>
        <source> Corvane starts at login.</source>
        <translation> Corvane se abre al iniciar sesión.</translation>
    </message>
    <message>
        <source>Open Mission Control</source>
        <translation>Abrir Mission Control</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Don&apos;t start at login</source>
        <translation>No abrir al iniciar sesión</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Ahora no</translation>
    </message>
</context>
<context>
    <name>DragTileContent</name>
    <message>
        <source>Not in the list? Drag me in.</source>
        <translation>¿No está en la lista? Arrástreme hasta ella.</translation>
    </message>
    <message>
        <source>Drop Corvane onto the Accessibility list above.</source>
        <translation>Suelte Corvane en la lista «Accesibilidad» de arriba.</translation>
    </message>
    <message>
        <source>Drop Corvane onto the Accessibility list.</source>
        <translation>Suelte Corvane en la lista «Accesibilidad».</translation>
    </message>
</context>
<context>
    <name>EBAboutScreen</name>
    <message>
        <source>Check for Updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>Website ↗︎</source>
        <translation>Sitio web ↗︎</translation>
    </message>
    <message>
        <source>Made by Vexmoor</source>
        <translation>Hecho por Vexmoor</translation>
    </message>
</context>
<context>
    <name>EBSearchField</name>
    <message>
        <source>Clear search</source>
        <translation>Borrar la búsqueda</translation>
    </message>
</context>
<context>
    <name>EBSettingsWindowController</name>
    <message>
        <source>%1 Settings</source>
        <extracomment>The title of the settings window; %1 is the product&apos;s name.</extracomment>
        <translation>Ajustes de %1</translation>
    </message>
</context>
<context>
    <name>EBStatus</name>
    <message>
        <source>Allowed</source>
        <translation>Permitido</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
</context>
<context>
    <name>EBStepList</name>
    <message>
        <source>Step %1 of %2, %3, done</source>
        <extracomment>Read aloud; %1 is the step&apos;s number, %2 how many there are, %3 its title.</extracomment>
        <translation>Paso %1 de %2, %3, hecho</translation>
    </message>
    <message>
        <source>Step %1 of %2, %3, current</source>
        <translation>Paso %1 de %2, %3, actual</translation>
    </message>
    <message>
        <source>Step %1 of %2, %3</source>
        <translation>Paso %1 de %2, %3</translation>
    </message>
</context>
<context>
    <name>FullScreenBadge</name>
    <message>
        <source>Full screen</source>
        <translation>Pantalla completa</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>login, startup, menu bar, icon, accessibility, permission, guide</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>sesión, inicio, arranque, barra de menús, icono, accesibilidad, permiso, guía</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>Start at login</source>
        <translation>Abrir al iniciar sesión</translation>
    </message>
    <message>
        <source>Waiting for your OK in System Settings › General › Login Items.</source>
        <translation>A la espera de su visto bueno en Ajustes del Sistema › General › Ítems de inicio.</translation>
    </message>
    <message>
        <source>So the buttons are there whenever you open Mission Control.</source>
        <translation>Para que los botones estén ahí siempre que abra Mission Control.</translation>
    </message>
    <message>
        <source>Login Items</source>
        <translation>Ítems de inicio</translation>
    </message>
    <message>
        <source>Allow Corvane there to finish.</source>
        <translation>Permita ahí Corvane para terminar.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Show in the menu bar</source>
        <translation>Mostrar en la barra de menús</translation>
    </message>
    <message>
        <source>Open Corvane from Applications to come back here.</source>
        <translation>Abra Corvane desde Aplicaciones para volver aquí.</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accesibilidad</translation>
    </message>
    <message>
        <source>Corvane can see which window you point at.</source>
        <translation>Corvane puede ver qué ventana señala usted.</translation>
    </message>
    <message>
        <source>Needed to see which window you point at in Mission Control.</source>
        <translation>Hace falta para ver qué ventana señala en Mission Control.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Abrir Ajustes</translation>
    </message>
    <message>
        <source>Welcome guide</source>
        <translation>Guía de bienvenida</translation>
    </message>
    <message>
        <source>Try it again in a pretend Mission Control.</source>
        <translation>Pruébelo de nuevo en un Mission Control simulado.</translation>
    </message>
    <message>
        <source>Show Guide</source>
        <translation>Mostrar la guía</translation>
    </message>
</context>
<context>
    <name>GuideWindowController</name>
    <message>
        <source>Welcome to Corvane</source>
        <translation>Le damos la bienvenida a Corvane</translation>
    </message>
</context>
<context>
    <name>ImportDrop</name>
    <message>
        <source>The settings were imported.</source>
        <translation>Se han importado los ajustes.</translation>
    </message>
</context>
<context>
    <name>ImportOffer</name>
    <message>
        <source>Changed: %1</source>
        <extracomment>%1 is the names of saved layouts. They stay, but what they put back is another.</extracomment>
        <translation>Con cambios: %1</translation>
    </message>
</context>
<context>
    <name>ImportSheet</name>
    <message>
        <source>Import these settings?</source>
        <translation>¿Importar estos ajustes?</translation>
    </message>
    <message>
        <source>Nothing to import</source>
        <translation>Nada que importar</translation>
    </message>
    <message>
        <source>Everything in this file is set already.</source>
        <translation>Todo lo que contiene este archivo ya está ajustado.</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <extracomment>%1 is the value that a setting has before an import.</extracomment>
        <translation>Ahora: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
</context>
<context>
    <name>KeySymbols</name>
    <message>
        <source> to </source>
        <translation> a </translation>
    </message>
</context>
<context>
    <name>LayoutNameField</name>
    <message>
        <source>Save name</source>
        <translation>Guardar el nombre</translation>
    </message>
</context>
<context>
    <name>LayoutPreview</name>
    <message numerus="yes">
        <source>%n windows: %1</source>
        <extracomment>%1 stands for the names of the windows&apos; applications.</extracomment>
        <translation>
            <numerusform>%n ventana: %1</numerusform>
            <numerusform>%n ventanas: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LayoutRow</name>
    <message>
        <source>Name of layout %1</source>
        <translation>Nombre de la disposición %1</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Eliminar %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The place of a layout in the list, and how many there are.</extracomment>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>LayoutsModel</name>
    <message>
        <source>layout %1</source>
        <extracomment>%1 is the place of a layout without a name in the list.</extracomment>
        <translation>disposición %1</translation>
    </message>
</context>
<context>
    <name>LayoutsPage</name>
    <message>
        <source>Layouts</source>
        <translation>Disposiciones</translation>
    </message>
    <message>
        <source>snap, arrange, tile, window, layout, shelf, gap</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>acoplar, ordenar, mosaico, ventana, disposición, estante, hueco</translation>
    </message>
</context>
<context>
    <name>LayoutsPane</name>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Pequeños</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grandes</translation>
    </message>
    <message>
        <source>Left or right half</source>
        <translation>Mitad izquierda o derecha</translation>
    </message>
    <message>
        <source>Again: two thirds, then a third.</source>
        <translation>Otra vez: dos tercios y luego uno.</translation>
    </message>
    <message>
        <source>Top or bottom half</source>
        <translation>Mitad superior o inferior</translation>
    </message>
    <message>
        <source>On a side: a quarter.</source>
        <translation>En un lado: un cuarto.</translation>
    </message>
    <message>
        <source>Fill the screen</source>
        <translation>Llenar la pantalla</translation>
    </message>
    <message>
        <source>Put a saved layout back</source>
        <translation>Restablecer una disposición guardada</translation>
    </message>
    <message>
        <source>Snap and arrange windows</source>
        <translation>Acoplar y ordenar ventanas</translation>
    </message>
    <message>
        <source>In Mission Control: snap the window under the pointer, compose layouts and put them back.</source>
        <translation>En Mission Control: acople la ventana bajo el puntero, componga disposiciones y restablézcalas.</translation>
    </message>
    <message>
        <source>Layouts shelf</source>
        <translation>Estante de disposiciones</translation>
    </message>
    <message>
        <source>A Layouts handle at the bottom of Mission Control. Point at it to open your layouts and templates.</source>
        <translation>Un tirador «Disposiciones» al pie de Mission Control. Señálelo para abrir sus disposiciones y plantillas.</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Huecos</translation>
    </message>
    <message>
        <source>Space between arranged windows.</source>
        <translation>Espacio entre las ventanas ordenadas.</translation>
    </message>
    <message>
        <source>Open apps that aren&apos;t running</source>
        <translation>Abrir las aplicaciones cerradas</translation>
    </message>
    <message>
        <source>When a saved layout is put back.</source>
        <translation>Al restablecer una disposición guardada.</translation>
    </message>
    <message>
        <source>Saved layouts</source>
        <translation>Disposiciones guardadas</translation>
    </message>
    <message>
        <source>In Mission Control</source>
        <translation>En Mission Control</translation>
    </message>
    <message>
        <source>Point at a window first. Click a layout on the shelf to put its windows back, ⌥-click to delete it. Click a template, then the windows that go in it, or drag a window onto a slot.</source>
        <translation>Señale primero una ventana. Haga clic en una disposición del estante para restablecer sus ventanas y ⌥-clic para eliminarla. Haga clic en una plantilla y luego en las ventanas que van en ella, o arrastre una ventana a un hueco.</translation>
    </message>
</context>
<context>
    <name>MarkConstruction</name>
    <message>
        <source>The %1 mark drawn on its grid</source>
        <extracomment>Read aloud; %1 is a product&apos;s name.</extracomment>
        <translation>El símbolo de %1 trazado en su cuadrícula</translation>
    </message>
</context>
<context>
    <name>OnboardingFlow</name>
    <message>
        <source>Click the cross, or press ⌘W to close it.</source>
        <translation>Haga clic en la cruz o pulse ⌘W para cerrarla.</translation>
    </message>
    <message>
        <source>Click a button, or press ⌘W to close it.</source>
        <translation>Haga clic en un botón o pulse ⌘W para cerrarla.</translation>
    </message>
    <message>
        <source>Now hover another window and press ⌘M to minimize it.</source>
        <translation>Ahora señale otra ventana y pulse ⌘M para minimizarla.</translation>
    </message>
    <message>
        <source>Press ⌘F on a window to take it full screen.</source>
        <translation>Pulse ⌘F sobre una ventana para ponerla a pantalla completa.</translation>
    </message>
    <message>
        <source>That&apos;s all there is to it. It works just like this in Mission Control.</source>
        <translation>Eso es todo. En Mission Control funciona igual.</translation>
    </message>
</context>
<context>
    <name>OnboardingStep</name>
    <message>
        <source>Welcome</source>
        <translation>Bienvenida</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Prueba</translation>
    </message>
    <message>
        <source>Permission</source>
        <translation>Permiso</translation>
    </message>
    <message>
        <source>Make it yours</source>
        <translation>A su gusto</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Step %1 · %2</source>
        <translation>Paso %1 · %2</translation>
    </message>
</context>
<context>
    <name>PageArea</name>
    <message>
        <source>Settings · %1</source>
        <extracomment>The line above a page&apos;s heading; %1 is the page&apos;s number.</extracomment>
        <translation>Ajustes · %1</translation>
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
        <translation>Meta</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Mayús</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Abajo</translation>
    </message>
</context>
<context>
    <name>RemovalLine</name>
    <message>
        <source>Deleted “%1”.</source>
        <extracomment>%1 is the name of a layout.</extracomment>
        <translation>«%1» se ha eliminado.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
</context>
<context>
    <name>SavedLayouts</name>
    <message>
        <source>None yet</source>
        <translation>Aún no hay ninguna</translation>
    </message>
    <message>
        <source>In Mission Control, click Save current, or a template.</source>
        <translation>En Mission Control, haga clic en «Guardar la actual» o en una plantilla.</translation>
    </message>
</context>
<context>
    <name>SettingWords</name>
    <message>
        <source>Look</source>
        <translation>Aspecto</translation>
    </message>
    <message>
        <source>Shortcut %1</source>
        <extracomment>%1 is the keys of a shortcut.</extracomment>
        <translation>Atajo %1</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
</context>
<context>
    <name>SettingsAppDelegate</name>
    <message>
        <source>Your settings are gone.</source>
        <translation>Sus ajustes han desaparecido.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Start Fresh</source>
        <translation>Empezar de nuevo</translation>
    </message>
</context>
<context>
    <name>SettingsTransfer</name>
    <message>
        <source>There is nothing to save settings in.</source>
        <translation>No hay dónde guardar los ajustes.</translation>
    </message>
    <message>
        <source>%1 Nothing was imported.</source>
        <extracomment>%1 is a sentence that says why.</extracomment>
        <translation>%1 No se ha importado nada.</translation>
    </message>
</context>
<context>
    <name>ShortcutVocabulary</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close all windows of the app</source>
        <translation>Cerrar todas las ventanas de la aplicación</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Hide app</source>
        <translation>Ocultar la aplicación</translation>
    </message>
    <message>
        <source>Hide other apps</source>
        <translation>Ocultar las demás aplicaciones</translation>
    </message>
    <message>
        <source>Force-quit app</source>
        <translation>Forzar la salida de la aplicación</translation>
    </message>
    <message>
        <source>%1 closed</source>
        <extracomment>%1 is the title of a window; so it is below where a window is minimized or full screen.</extracomment>
        <translation>%1: ventana cerrada</translation>
    </message>
    <message>
        <source>%1 minimized</source>
        <translation>%1: ventana minimizada</translation>
    </message>
    <message>
        <source>%1 full screen</source>
        <translation>%1: pantalla completa</translation>
    </message>
    <message>
        <source>%1 no longer full screen</source>
        <translation>%1: ya no está a pantalla completa</translation>
    </message>
    <message>
        <source>All windows of %1 closed</source>
        <extracomment>%1 is the name of an application; so it is below.</extracomment>
        <translation>%1: todas las ventanas cerradas</translation>
    </message>
    <message>
        <source>%1 hidden</source>
        <translation>%1: aplicación oculta</translation>
    </message>
    <message>
        <source>All but %1 hidden</source>
        <translation>Todo oculto excepto %1</translation>
    </message>
    <message>
        <source>%1 quit</source>
        <translation>%1: aplicación cerrada</translation>
    </message>
</context>
<context>
    <name>ShortcutsModel</name>
    <message>
        <source>Close window</source>
        <translation>Cerrar la ventana</translation>
    </message>
    <message>
        <source>Close all windows of the app</source>
        <translation>Cerrar todas las ventanas de la aplicación</translation>
    </message>
    <message>
        <source>Minimize window</source>
        <translation>Minimizar la ventana</translation>
    </message>
    <message>
        <source>Full screen / maximize window</source>
        <translation>Pantalla completa / maximizar la ventana</translation>
    </message>
    <message>
        <source>Hide app</source>
        <translation>Ocultar la aplicación</translation>
    </message>
    <message>
        <source>Hide other apps</source>
        <translation>Ocultar las demás aplicaciones</translation>
    </message>
    <message>
        <source>Force-quit app</source>
        <translation>Forzar la salida de la aplicación</translation>
    </message>
</context>
<context>
    <name>ShortcutsPage</name>
    <message>
        <source>Shortcuts</source>
        <translation>Atajos</translation>
    </message>
    <message>
        <source>keyboard, hotkey, close, hide, quit, minimize</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>teclado, tecla, cerrar, ocultar, salir, minimizar</translation>
    </message>
</context>
<context>
    <name>ShortcutsPane</name>
    <message>
        <source>They work only while Mission Control is open, on the window under the pointer.</source>
        <translation>Solo funcionan mientras Mission Control está abierto, en la ventana bajo el puntero.</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>%1
Version %2</source>
        <extracomment>%1 is the product&apos;s name, %2 its version.</extracomment>
        <translation>%1
Versión %2</translation>
    </message>
</context>
<context>
    <name>StoreTrouble</name>
    <message>
        <source>Changes last only until you close this window: there is nothing to save them in.</source>
        <translation>Los cambios solo duran hasta que cierre esta ventana: no hay dónde guardarlos.</translation>
    </message>
    <message>
        <source>Changes can&apos;t be saved: the settings service doesn&apos;t answer.</source>
        <translation>No se pueden guardar los cambios: el servicio de configuración no responde.</translation>
    </message>
    <message>
        <source>Changes can&apos;t be saved: the disk is full or read-only.</source>
        <translation>No se pueden guardar los cambios: el disco está lleno o es de solo lectura.</translation>
    </message>
    <message>
        <source>This can&apos;t be changed: your administrator has locked it.</source>
        <translation>Esto no se puede cambiar: su administrador lo ha bloqueado.</translation>
    </message>
    <message>
        <source>Changes can&apos;t be saved: the settings service stores them elsewhere.</source>
        <translation>No se pueden guardar los cambios: el servicio de configuración los guarda en otro lugar.</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>Classic</source>
        <translation>Clásico</translation>
    </message>
    <message>
        <source>The familiar macOS red, yellow and green.</source>
        <translation>El rojo, amarillo y verde conocidos de macOS.</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Suave</translation>
    </message>
    <message>
        <source>The same colors, calmer and less bright.</source>
        <translation>Los mismos colores, más tranquilos y menos vivos.</translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation>Grafito</translation>
    </message>
    <message>
        <source>Shades of grey. Tell them apart by shape.</source>
        <translation>Tonos de gris. Se distinguen por la forma.</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Pure black and white.</source>
        <translation>Blanco y negro puros.</translation>
    </message>
    <message>
        <source>No color</source>
        <translation>Incoloro</translation>
    </message>
    <message>
        <source>Clear outlines, nothing colored.</source>
        <translation>Contornos claros, nada de color.</translation>
    </message>
</context>
<context>
    <name>ThemeTile</name>
    <message>
        <source>%1 look</source>
        <extracomment>%1 is the title of a theme of the buttons.</extracomment>
        <translation>Aspecto «%1»</translation>
    </message>
</context>
<context>
    <name>TryItStep</name>
    <message>
        <source>Give it a try</source>
        <translation>Pruébelo</translation>
    </message>
    <message>
        <source>Reset windows</source>
        <translation>Restablecer ventanas</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Close, minimize and full-screen windows right in Mission Control. Hover a window for its buttons, or use the shortcuts you already know.</source>
        <translation>Cierre, minimice y ponga a pantalla completa las ventanas directamente en Mission Control. Señale una ventana para ver sus botones o use los atajos que ya conoce.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>Skip setup</source>
        <translation>Omitir la configuración</translation>
    </message>
</context>
<context>
    <name>WindowChrome</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Ampliar</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en_US">
<context>
    <name>AccentSwatch</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>ActionFigures</name>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>%1 combos</source>
        <translation>Combos: %1</translation>
    </message>
    <message>
        <source>%1% equity</source>
        <translation>Equity: %1%</translation>
    </message>
    <message>
        <source>%1 EV</source>
        <translation>EV: %1</translation>
    </message>
</context>
<context>
    <name>ActionFrequencies</name>
    <message>
        <source>Action Frequencies</source>
        <translation>Frecuencias de acción</translation>
    </message>
</context>
<context>
    <name>ActivityGrid</name>
    <message>
        <source>Solve Activity</source>
        <translation>Actividad de cálculo</translation>
    </message>
    <message>
        <source>Last 52 weeks</source>
        <translation>Últimas 52 semanas</translation>
    </message>
</context>
<context>
    <name>AppController</name>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Iniciando…</translation>
    </message>
    <message>
        <source>No previous solve config (solve once first)</source>
        <translation>No hay configuración anterior (hay que calcular primero)</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Cancelando…</translation>
    </message>
    <message>
        <source>Another file is still being saved or opened</source>
        <translation>Aún se está guardando o abriendo otro archivo</translation>
    </message>
    <message>
        <source>Loaded project (%1 strategy nodes, %2 combo nodes)</source>
        <translation>Proyecto cargado (nodos de estrategia: %1, nodos de combos: %2)</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <translation>No se pudo abrir el archivo</translation>
    </message>
    <message>
        <source>Unrecognized project format</source>
        <translation>Formato de proyecto no reconocido</translation>
    </message>
    <message>
        <source>Unsupported project version</source>
        <translation>Versión de proyecto no compatible</translation>
    </message>
    <message>
        <source>Invalid JSON</source>
        <translation>JSON no válido</translation>
    </message>
    <message>
        <source>Failed to save file: %1</source>
        <translation>No se pudo guardar el archivo: %1</translation>
    </message>
    <message>
        <source>Failed to open file: %1</source>
        <translation>No se pudo abrir el archivo: %1</translation>
    </message>
    <message>
        <source>Estimating the memory...</source>
        <translation>Estimando la memoria…</translation>
    </message>
    <message>
        <source>Not started: the solve needs the memory of the result on view</source>
        <translation>No iniciado: el cálculo necesita la memoria del resultado en pantalla</translation>
    </message>
    <message>
        <source>Not enough RAM to solve: %1 needed, %2 available</source>
        <translation>RAM insuficiente para el cálculo: hacen falta %1, hay %2 disponibles</translation>
    </message>
    <message>
        <source>Waiting for the cancelled solve to stop...</source>
        <translation>Esperando a que se detenga el cálculo cancelado…</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>There is not enough memory for the answers of this node</source>
        <translation>No hay memoria suficiente para las respuestas de este nodo</translation>
    </message>
    <message>
        <source>The board of the project is impossible: %1</source>
        <translation>El board del proyecto es imposible: %1</translation>
    </message>
    <message>
        <source>Invalid JSON at byte %1, in %2</source>
        <translation>JSON no válido en el byte %1, en %2</translation>
    </message>
    <message>
        <source>Not ready: enter a valid board first</source>
        <translation>No está listo: introduce primero un board válido</translation>
    </message>
    <message>
        <source>Not ready: select at least one hand in both ranges</source>
        <translation>No está listo: selecciona al menos una mano en ambos rangos</translation>
    </message>
    <message>
        <source>Not ready: fill out both OOP and IP sizing</source>
        <translation>No está listo: completa los tamaños de OOP y de IP</translation>
    </message>
    <message>
        <source>Solve failed: %1</source>
        <translation>El cálculo ha fallado: %1</translation>
    </message>
    <message>
        <source>Board %1 | iters %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5</source>
        <translation>Board %1 | iter. %2 | expl.≈%3 | EV(oop)=%4 EV(ip)=%5</translation>
    </message>
    <message>
        <source>Invalid/non-local file URL</source>
        <translation>URL de archivo no válida o no local</translation>
    </message>
    <message>
        <source>Empty file path</source>
        <translation>Ruta de archivo vacía</translation>
    </message>
</context>
<context>
    <name>AppShell</name>
    <message>
        <source>Start a new project (or load one) from Home to enable Project</source>
        <translation>Cree (o cargue) un proyecto en «Inicio» para activar «Proyecto»</translation>
    </message>
    <message>
        <source>The memory that this solve takes could not be estimated.</source>
        <translation>No se pudo estimar la memoria que requiere este cálculo.</translation>
    </message>
    <message>
        <source>Not enough memory: this solve takes %1, and %2 is available.</source>
        <translation>Memoria insuficiente: este cálculo requiere %1 y hay %2 disponibles.</translation>
    </message>
    <message>
        <source>Dunmarrow</source>
        <translation>Dunmarrow</translation>
    </message>
    <message>
        <source>%1%2 — Dunmarrow</source>
        <translation>%1%2 — Dunmarrow</translation>
    </message>
    <message>
        <source>New spot</source>
        <translation>Nuevo spot</translation>
    </message>
    <message>
        <source>Node locks</source>
        <translation>Node-locks</translation>
    </message>
    <message>
        <source>Node locks (%1) are set on the tree of this spot. Apply them in this solve?</source>
        <translation>El árbol de este spot tiene node-locks (%1). ¿Aplicarlos en este cálculo?</translation>
    </message>
    <message>
        <source>Solve without locks</source>
        <translation>Calcular sin node-locks</translation>
    </message>
    <message>
        <source>Apply the locks</source>
        <translation>Aplicar node-locks</translation>
    </message>
    <message>
        <source>A solve is running, and it will be cancelled.</source>
        <translation>Hay un cálculo en curso y se cancelará.</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>The spot or its results are not saved.</source>
        <translation>El spot o sus resultados no se han guardado.</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>No guardar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Cancel the solve</source>
        <translation>Cancelar el cálculo</translation>
    </message>
    <message>
        <source>Take back your spot?</source>
        <translation>¿Recuperar su spot?</translation>
    </message>
    <message>
        <source>Dunmarrow did not close properly. The spot that you were editing was kept on %1.</source>
        <translation>Dunmarrow no se cerró correctamente. El spot que estaba editando se conservó (%1).</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Take it back</source>
        <translation>Recuperar</translation>
    </message>
    <message>
        <source>Not enough memory for both</source>
        <translation>Memoria insuficiente para ambos</translation>
    </message>
    <message>
        <source>This solve needs %1, and %2 are available. It can start if the solver of the result on view is dropped: of that result only what was looked at so far stays.</source>
        <translation>Este cálculo requiere %1 y hay %2 disponibles. Puede iniciarse si se descarta el solver del resultado en pantalla: de ese resultado solo quedará lo que ya se haya consultado.</translation>
    </message>
    <message>
        <source>Save first</source>
        <translation>Guardar antes</translation>
    </message>
    <message>
        <source>Solve without saving</source>
        <translation>Calcular sin guardar</translation>
    </message>
    <message>
        <source>%1 pot %2</source>
        <translation>%1 bote %2</translation>
    </message>
    <message>
        <source>Saved %1 at %2</source>
        <translation>%1 guardado a las %2</translation>
    </message>
</context>
<context>
    <name>AppearanceCard</name>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Dark Mode</source>
        <translation>Modo oscuro</translation>
    </message>
    <message>
        <source>Use dark color scheme throughout the interface</source>
        <translation>Usar colores oscuros en toda la interfaz</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Change the app language (takes effect immediately)</source>
        <translation>Cambiar el idioma de la aplicación (efecto inmediato)</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Idioma del sistema</translation>
    </message>
    <message>
        <source>Accent Color</source>
        <translation>Color de énfasis</translation>
    </message>
    <message>
        <source>Customize the app highlight color (buttons, accents, clubs/check).</source>
        <translation>Personalizar el color de énfasis (botones, acentos, tréboles/check).</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Morado</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Dorado</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
</context>
<context>
    <name>BoardCard</name>
    <message>
        <source>Board</source>
        <translation>Board</translation>
    </message>
</context>
<context>
    <name>BoardDisplay</name>
    <message>
        <source>River</source>
        <translation>River</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Turn</translation>
    </message>
    <message>
        <source>Flop</source>
        <translation>Flop</translation>
    </message>
    <message>
        <source>Preflop</source>
        <translation>Preflop</translation>
    </message>
    <message>
        <source>Board</source>
        <translation>Board</translation>
    </message>
</context>
<context>
    <name>BucketRow</name>
    <message>
        <source>%1 combos</source>
        <translation>Combos: %1</translation>
    </message>
</context>
<context>
    <name>BucketsCard</name>
    <message>
        <source>Buckets</source>
        <translation>Categorías</translation>
    </message>
    <message>
        <source>%1 shown</source>
        <translation>Mostradas: %1</translation>
    </message>
</context>
<context>
    <name>BusyLabel</name>
    <message>
        <source>Loading…</source>
        <translation>Cargando…</translation>
    </message>
</context>
<context>
    <name>CardPicker</name>
    <message>
        <source>Cards</source>
        <translation>Cartas</translation>
    </message>
</context>
<context>
    <name>CardPickerDialog</name>
    <message>
        <source>Select card</source>
        <translation>Elegir carta</translation>
    </message>
    <message>
        <source>River card</source>
        <translation>Carta del river</translation>
    </message>
    <message>
        <source>Turn card</source>
        <translation>Carta del turn</translation>
    </message>
    <message>
        <source>Flop card</source>
        <translation>Carta del flop</translation>
    </message>
    <message>
        <source>Clear card</source>
        <translation>Quitar carta</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>CardPickerTile</name>
    <message>
        <source>Already used</source>
        <translation>Ya está en uso</translation>
    </message>
</context>
<context>
    <name>ChancePicker</name>
    <message>
        <source>Choose River Card</source>
        <translation>Elegir carta del river</translation>
    </message>
    <message>
        <source>Choose Turn Card</source>
        <translation>Elegir carta del turn</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Al azar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>%1 can&apos;t be dealt here.</source>
        <translation>%1 no se puede repartir aquí.</translation>
    </message>
    <message>
        <source>Arrow keys and Return choose a card, or type it: 7c.</source>
        <translation>Elija una carta con las flechas e Intro o escríbala: 7c.</translation>
    </message>
</context>
<context>
    <name>Chip</name>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
</context>
<context>
    <name>ClearStatsDialog</name>
    <message>
        <source>Clear Play vs. Solution Stats</source>
        <translation>Borrar estadísticas «Contra la solución»</translation>
    </message>
    <message>
        <source>Clear all Play vs. Solution statistics (today + total)?</source>
        <translation>¿Borrar todas las estadísticas de «Contra la solución» (hoy + total)?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ComboRow</name>
    <message>
        <source>EV:</source>
        <translation>EV:</translation>
    </message>
</context>
<context>
    <name>ComputeCard</name>
    <message>
        <source>Compute</source>
        <translation>Ejecución</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Hilos</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Máx.</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Precisión</translation>
    </message>
    <message>
        <source>The solver computes in Float32, whatever is chosen here.</source>
        <translation>El solver calcula en Float32, sea cual sea esta opción.</translation>
    </message>
</context>
<context>
    <name>ConfigurationCard</name>
    <message>
        <source>flop</source>
        <translation>flop</translation>
    </message>
    <message>
        <source>turn</source>
        <translation>turn</translation>
    </message>
    <message>
        <source>river</source>
        <translation>river</translation>
    </message>
    <message>
        <source>OOP: don&apos;t donk on %1</source>
        <translation>OOP: sin donk en el %1</translation>
    </message>
    <message>
        <source>OOP: add all-in on %1</source>
        <translation>OOP: añadir all-in en el %1</translation>
    </message>
    <message>
        <source>IP: add all-in on %1</source>
        <translation>IP: añadir all-in en el %1</translation>
    </message>
    <message>
        <source>OOP: add all-in if jam &lt; %1% pot</source>
        <translation>OOP: añadir all-in si jam &lt; %1% del bote</translation>
    </message>
    <message>
        <source>IP: add all-in if jam &lt; %1% pot</source>
        <translation>IP: añadir all-in si jam &lt; %1% del bote</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Street</source>
        <translation>Calle</translation>
    </message>
    <message>
        <source>Pot / Stack</source>
        <translation>Bote / stack</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Objetivo</translation>
    </message>
    <message>
        <source>%1% (= %2)</source>
        <translation>%1% (= %2)</translation>
    </message>
    <message>
        <source>Rake</source>
        <translation>Rake</translation>
    </message>
    <message>
        <source>%1% (cap %2)</source>
        <translation>%1% (tope %2)</translation>
    </message>
    <message>
        <source>Bet sizes</source>
        <translation>Apuestas</translation>
    </message>
    <message>
        <source>F %1/%2 • T %3/%4 • R %5/%6</source>
        <translation>F %1/%2 • T %3/%4 • R %5/%6</translation>
    </message>
    <message>
        <source>Options enabled</source>
        <translation>Opciones activas</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Controles</translation>
    </message>
    <message>
        <source>Solving...</source>
        <translation>Calculando…</translation>
    </message>
    <message>
        <source>Start Solve</source>
        <translation>Iniciar cálculo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>View Results →</source>
        <translation>Ver resultados →</translation>
    </message>
</context>
<context>
    <name>CustomActions</name>
    <message>
        <source>Are you sure you want to delete this folder?</source>
        <translation>¿Seguro que desea eliminar esta carpeta?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this range?</source>
        <translation>¿Seguro que desea eliminar este rango?</translation>
    </message>
    <message>
        <source>This will also delete %1 range(s). This cannot be undone.</source>
        <translation>También se eliminarán los rangos que contiene (total: %1). Esta acción no se puede deshacer.</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>Esta acción no se puede deshacer.</translation>
    </message>
    <message>
        <source>Save current range…</source>
        <translation>Guardar rango actual…</translation>
    </message>
    <message>
        <source>Import range…</source>
        <translation>Importar rango…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Añadir carpeta…</translation>
    </message>
    <message>
        <source>Delete selected…</source>
        <translation>Eliminar selección…</translation>
    </message>
    <message>
        <source>Save OOP range</source>
        <translation>Guardar rango OOP</translation>
    </message>
    <message>
        <source>Save IP range</source>
        <translation>Guardar rango IP</translation>
    </message>
    <message>
        <source>Name this range:</source>
        <translation>Nombre del rango:</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB (default)</source>
        <translation>p.&#xa0;ej., BTN vs BB (por defecto)</translation>
    </message>
    <message>
        <source>Add folder (OOP)</source>
        <translation>Añadir carpeta (OOP)</translation>
    </message>
    <message>
        <source>Add folder (IP)</source>
        <translation>Añadir carpeta (IP)</translation>
    </message>
    <message>
        <source>Folder name:</source>
        <translation>Nombre de la carpeta:</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB</source>
        <translation>p.&#xa0;ej., BTN vs BB</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Delete range</source>
        <translation>Eliminar rango</translation>
    </message>
</context>
<context>
    <name>DeleteDialog</name>
    <message>
        <source>This cannot be undone.</source>
        <translation>Esta acción no se puede deshacer.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>DeveloperActions</name>
    <message>
        <source>Override</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Export standard…</source>
        <translation>Exportar estándar…</translation>
    </message>
    <message>
        <source>Export population…</source>
        <translation>Exportar población…</translation>
    </message>
    <message>
        <source>Clear overrides…</source>
        <translation>Borrar reemplazos…</translation>
    </message>
    <message>
        <source>Export Standard Ranges</source>
        <translation>Exportar rangos estándar</translation>
    </message>
    <message>
        <source>Export Population Ranges</source>
        <translation>Exportar rangos de población</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Clear standard overrides</source>
        <translation>Borrar reemplazos de rangos estándar</translation>
    </message>
    <message>
        <source>Clear population overrides</source>
        <translation>Borrar reemplazos de rangos de población</translation>
    </message>
    <message>
        <source>Clear all locally overridden standard ranges for %1?</source>
        <translation>¿Borrar todos los rangos estándar reemplazados localmente para %1?</translation>
    </message>
    <message>
        <source>Clear all locally overridden population ranges for %1?</source>
        <translation>¿Borrar todos los rangos de población reemplazados localmente para %1?</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
</context>
<context>
    <name>DrillBar</name>
    <message>
        <source>Stop drill</source>
        <translation>Parar práctica</translation>
    </message>
    <message>
        <source>Drill spot</source>
        <translation>Practicar spot</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Escritorio</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Descargas</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Personal</translation>
    </message>
    <message>
        <source>There is no folder “%1”.</source>
        <translation>La carpeta «%1» no existe.</translation>
    </message>
    <message>
        <source>There is no file “%1” here.</source>
        <translation>Aquí no hay ningún archivo «%1».</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Nothing to choose here.</source>
        <translation>Aquí no hay nada que elegir.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de archivo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Replace file?</source>
        <translation>¿Reemplazar el archivo?</translation>
    </message>
    <message>
        <source>“%1” is there already. Saving replaces what it holds.</source>
        <translation>«%1» ya existe. Al guardar se reemplazará su contenido.</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>Conservar</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
</context>
<context>
    <name>FileList</name>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Folder %1</source>
        <translation>Carpeta %1</translation>
    </message>
</context>
<context>
    <name>FileProgress</name>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>GameSettingsCard</name>
    <message>
        <source>Game Settings</source>
        <translation>Ajustes de juego</translation>
    </message>
    <message>
        <source>Starting Pot</source>
        <translation>Bote inicial</translation>
    </message>
    <message>
        <source>e.g., 100</source>
        <translation>p.&#xa0;ej., 100</translation>
    </message>
    <message>
        <source>Effective Stack</source>
        <translation>Stack efectivo</translation>
    </message>
    <message>
        <source>Rake (%)</source>
        <translation>Rake (%)</translation>
    </message>
    <message>
        <source>e.g., 5.0</source>
        <translation>p.&#xa0;ej., 5.0</translation>
    </message>
    <message>
        <source>Rake Cap</source>
        <translation>Tope de rake</translation>
    </message>
    <message>
        <source>e.g., 0</source>
        <translation>p.&#xa0;ej., 0</translation>
    </message>
    <message>
        <source>Target Exploitability (%)</source>
        <translation>Objetivo (% bote)</translation>
    </message>
    <message>
        <source>e.g., 0.10</source>
        <translation>p.&#xa0;ej., 0.10</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>GameTreePanel</name>
    <message>
        <source>Game Tree</source>
        <translation>Árbol de juego</translation>
    </message>
</context>
<context>
    <name>HandBuckets</name>
    <message>
        <source>air</source>
        <translation>aire</translation>
    </message>
    <message>
        <source>back door flush draw</source>
        <translation>backdoor de color</translation>
    </message>
    <message>
        <source>bottom pair</source>
        <translation>bottom pair</translation>
    </message>
    <message>
        <source>dry pair</source>
        <translation>underpair</translation>
    </message>
    <message>
        <source>flush</source>
        <translation>color</translation>
    </message>
    <message>
        <source>flush draw</source>
        <translation>proyecto de color</translation>
    </message>
    <message>
        <source>full house</source>
        <translation>full</translation>
    </message>
    <message>
        <source>gutter</source>
        <translation>gutshot</translation>
    </message>
    <message>
        <source>middle pair</source>
        <translation>middle pair</translation>
    </message>
    <message>
        <source>missed FD</source>
        <translation>color fallado</translation>
    </message>
    <message>
        <source>missed OESD</source>
        <translation>abierta fallada</translation>
    </message>
    <message>
        <source>missed gutter</source>
        <translation>gutshot fallado</translation>
    </message>
    <message>
        <source>open ended straight draw</source>
        <translation>proyecto de escalera abierta</translation>
    </message>
    <message>
        <source>overpair</source>
        <translation>overpair</translation>
    </message>
    <message>
        <source>quads</source>
        <translation>póker</translation>
    </message>
    <message>
        <source>set</source>
        <translation>set</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>escalera</translation>
    </message>
    <message>
        <source>straight flush</source>
        <translation>escalera de color</translation>
    </message>
    <message>
        <source>top pair</source>
        <translation>top pair</translation>
    </message>
    <message>
        <source>trips</source>
        <translation>trips</translation>
    </message>
    <message>
        <source>two pair</source>
        <translation>doble pareja</translation>
    </message>
</context>
<context>
    <name>HandDetails</name>
    <message>
        <source>Hand details</source>
        <translation>Detalles de la mano</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Flop</source>
        <translation>Flop</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Turn</translation>
    </message>
    <message>
        <source>River</source>
        <translation>River</translation>
    </message>
    <message>
        <source>Hands</source>
        <translation>Manos</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
</context>
<context>
    <name>HandDetailsCard</name>
    <message>
        <source>Loading hand combos…</source>
        <translation>Cargando combos…</translation>
    </message>
    <message>
        <source>No hand combos to display for this node.</source>
        <translation>No hay combos que mostrar en este nodo.</translation>
    </message>
    <message>
        <source>No combos match the current filters.</source>
        <translation>Ningún combo coincide con los filtros.</translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation>Detalles de las manos</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search (JJ, 56s, JcJd, ...)</source>
        <translation>Buscar (JJ, 56s, JcJd…)</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtro: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Quitar</translation>
    </message>
</context>
<context>
    <name>HandLog</name>
    <message>
        <source>Hand Log</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>%1 hands</source>
        <translation>Manos: %1</translation>
    </message>
    <message>
        <source>Hands that you finish are listed here.</source>
        <translation>Aquí aparecen las manos terminadas.</translation>
    </message>
</context>
<context>
    <name>HandLogRow</name>
    <message>
        <source>EV -%1</source>
        <translation>EV -%1</translation>
    </message>
    <message>
        <source>Perfect</source>
        <translation>Perfecto</translation>
    </message>
</context>
<context>
    <name>HandMatrix</name>
    <message>
        <source>Hands</source>
        <translation>Manos</translation>
    </message>
    <message>
        <source>%1, weight %2%</source>
        <translation>%1, peso %2%</translation>
    </message>
</context>
<context>
    <name>HandSummary</name>
    <message>
        <source>Winner: %1</source>
        <translation>Ganador: %1</translation>
    </message>
    <message>
        <source>Won: %1</source>
        <translation>Ganado: %1</translation>
    </message>
    <message>
        <source>Rake: %1</source>
        <translation>Rake: %1</translation>
    </message>
    <message>
        <source>EV lost: %1</source>
        <translation>EV perdido: %1</translation>
    </message>
    <message>
        <source>Incorrect: %1</source>
        <translation>Incorrecto: %1</translation>
    </message>
    <message>
        <source>Correct: %1</source>
        <translation>Correcto: %1</translation>
    </message>
</context>
<context>
    <name>HeroBand</name>
    <message>
        <source>Dunmarrow</source>
        <translation>Dunmarrow</translation>
    </message>
    <message>
        <source>A modern, high-performance holdem solver</source>
        <translation>Un solver de hold’em moderno y de alto rendimiento</translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation>Nuevo cálculo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Abrir archivo</translation>
    </message>
</context>
<context>
    <name>ImportRange</name>
    <message>
        <source>Import failed: %1</source>
        <translation>Error al importar: %1</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>error desconocido</translation>
    </message>
    <message>
        <source>Import failed: file contained no recognizable hands.</source>
        <translation>Error al importar: el archivo no contiene manos reconocibles.</translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation>Importar rango</translation>
    </message>
    <message>
        <source>Range text (*.txt)</source>
        <translation>Texto de rango (*.txt)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Name this range:</source>
        <translation>Nombre del rango:</translation>
    </message>
    <message>
        <source>e.g., BTN open (custom)</source>
        <translation>p.&#xa0;ej., BTN open (propio)</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
</context>
<context>
    <name>LibraryColumn</name>
    <message>
        <source>No ranges yet.</source>
        <translation>Aún no hay rangos.</translation>
    </message>
</context>
<context>
    <name>LibraryRow</name>
    <message>
        <source>Open folder</source>
        <translation>Carpeta abierta</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
</context>
<context>
    <name>LicensesCard</name>
    <message>
        <source>Licenses</source>
        <translation>Licencias</translation>
    </message>
    <message>
        <source>Qt Framework</source>
        <translation>Qt Framework</translation>
    </message>
    <message>
        <source>Runtime (dynamic linking)</source>
        <translation>Ejecución (enlace dinámico)</translation>
    </message>
    <message>
        <source>LGPL v3</source>
        <translation>LGPL v3</translation>
    </message>
    <message>
        <source>oneTBB</source>
        <translation>oneTBB</translation>
    </message>
    <message>
        <source>Threading</source>
        <translation>Multihilo</translation>
    </message>
    <message>
        <source>Apache 2.0</source>
        <translation>Apache 2.0</translation>
    </message>
    <message>
        <source>Third-party notices and license texts are included in the &apos;licenses&apos; folder next to the executable.</source>
        <translation>Los avisos de terceros y los textos de las licencias están en la carpeta «licenses», junto al ejecutable.</translation>
    </message>
    <message>
        <source>Open licenses folder</source>
        <translation>Abrir carpeta de licencias</translation>
    </message>
    <message>
        <source>Open notices</source>
        <translation>Abrir avisos</translation>
    </message>
</context>
<context>
    <name>LoadProfileDialog</name>
    <message>
        <source>Please select a profile.</source>
        <translation>Seleccione un perfil.</translation>
    </message>
    <message>
        <source>Load Settings Profile</source>
        <translation>Cargar perfil de ajustes</translation>
    </message>
    <message>
        <source>Choose a saved profile:</source>
        <translation>Elegir un perfil guardado:</translation>
    </message>
    <message>
        <source>No saved profiles yet.</source>
        <translation>Aún no hay perfiles guardados.</translation>
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
        <source>Load</source>
        <translation>Cargar</translation>
    </message>
    <message>
        <source>Delete settings profile</source>
        <translation>Eliminar perfil de ajustes</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this saved profile?</source>
        <translation>¿Seguro que desea eliminar este perfil guardado?</translation>
    </message>
</context>
<context>
    <name>LockModeButtons</name>
    <message>
        <source>Standard mode</source>
        <translation>Modo estándar</translation>
    </message>
    <message>
        <source>Node-lock mode</source>
        <translation>Modo node-lock</translation>
    </message>
</context>
<context>
    <name>MessageBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>NameDialog</name>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>NodeBox</name>
    <message>
        <source>Pot</source>
        <translation>Bote</translation>
    </message>
    <message>
        <source>Stack (%1)</source>
        <translation>Stack (%1)</translation>
    </message>
    <message>
        <source>To call</source>
        <translation>A pagar</translation>
    </message>
</context>
<context>
    <name>NodeLockPanel</name>
    <message>
        <source>Node-Locking</source>
        <translation>Node-locking</translation>
    </message>
    <message>
        <source>Node-locking is only available on decision nodes.</source>
        <translation>El node-locking solo está disponible en nodos de decisión.</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>0..1</source>
        <translation>0..1</translation>
    </message>
    <message>
        <source>Reset weights</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation>Recalcular</translation>
    </message>
    <message>
        <source>Tip: select an action above, then click a hand cell in the matrix to lock it.</source>
        <translation>Consejo: elija una acción arriba y haga clic en una mano de la matriz para bloquearla.</translation>
    </message>
    <message>
        <source>Undo reset</source>
        <translation>Deshacer reset</translation>
    </message>
</context>
<context>
    <name>NodeLocks</name>
    <message>
        <source>The weight must be a number from 0 to 1</source>
        <translation>El peso debe ser un número de 0 a 1</translation>
    </message>
</context>
<context>
    <name>NodeView</name>
    <message>
        <source>Random river card</source>
        <translation>Carta del river al azar</translation>
    </message>
    <message>
        <source>Random turn card</source>
        <translation>Carta del turn al azar</translation>
    </message>
</context>
<context>
    <name>NoticeStrip</name>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>NumberField</name>
    <message>
        <source>Enter a number from %1 to %2 with at most %3 decimals.</source>
        <translation>Introduzca un número de %1 a %2 con un máximo de %3 decimales.</translation>
    </message>
    <message>
        <source>Enter a whole number from %1 to %2.</source>
        <translation>Introduzca un número entero de %1 a %2.</translation>
    </message>
</context>
<context>
    <name>PlayActionButton</name>
    <message>
        <source>Key %1</source>
        <translation>Tecla %1</translation>
    </message>
</context>
<context>
    <name>PlayPanel</name>
    <message>
        <source>Play vs. Solution</source>
        <translation>Contra la solución</translation>
    </message>
    <message>
        <source>Role: %1</source>
        <translation>Rol: %1</translation>
    </message>
    <message>
        <source>Choose a role to start</source>
        <translation>Elija un rol para empezar</translation>
    </message>
    <message>
        <source>No hands can be dealt here. Solve the spot again to play it.</source>
        <translation>Aquí no se pueden repartir manos. Hay que volver a calcular el spot para jugarlo.</translation>
    </message>
    <message>
        <source>Hand Log</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Hand details</source>
        <translation>Detalles de la mano</translation>
    </message>
    <message>
        <source>Choose a hand in the log.</source>
        <translation>Elija una mano del historial.</translation>
    </message>
</context>
<context>
    <name>PlayPrompt</name>
    <message>
        <source>%1 loses %2 EV. Best: %3</source>
        <translation>%1 pierde %2 de EV. Mejor: %3</translation>
    </message>
    <message>
        <source>Perfect</source>
        <translation>Perfecto</translation>
    </message>
    <message>
        <source>Another hand</source>
        <translation>Otra mano</translation>
    </message>
</context>
<context>
    <name>PlaySeat</name>
    <message>
        <source>%1: no cards</source>
        <translation>%1: sin cartas</translation>
    </message>
    <message>
        <source>%1: opponent&apos;s cards, face down</source>
        <translation>%1: cartas del rival, boca abajo</translation>
    </message>
    <message>
        <source>Stack: %1</source>
        <translation>Stack: %1</translation>
    </message>
</context>
<context>
    <name>PlaySession</name>
    <message>
        <source>Wrong — best: %1 (EV -%2)</source>
        <translation>Incorrecto. Mejor: %1 (EV -%2)</translation>
    </message>
    <message>
        <source>Correct</source>
        <translation>Correcto</translation>
    </message>
</context>
<context>
    <name>PlayTable</name>
    <message>
        <source>Table</source>
        <translation>Mesa</translation>
    </message>
    <message>
        <source>Dealer button</source>
        <translation>Botón del dealer</translation>
    </message>
    <message>
        <source>Pot: %1</source>
        <translation>Bote: %1</translation>
    </message>
    <message>
        <source>Click Turn/River to change</source>
        <translation>Clic en turn/river para cambiar</translation>
    </message>
    <message>
        <source>OOP action: %1</source>
        <translation>Acción de OOP: %1</translation>
    </message>
</context>
<context>
    <name>PlayingCard</name>
    <message>
        <source>Face-down card</source>
        <translation>Carta boca abajo</translation>
    </message>
    <message>
        <source>Empty card slot</source>
        <translation>Hueco de carta vacío</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
</context>
<context>
    <name>ProgressCard</name>
    <message>
        <source>Iteration %1 | exploitability=%2</source>
        <translation>Iteración %1 | explotabilidad=%2</translation>
    </message>
    <message>
        <source>Ready to solve</source>
        <translation>Listo para calcular</translation>
    </message>
    <message>
        <source>Finalizing…</source>
        <translation>Finalizando…</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Solver converged — finalizing results…</source>
        <translation>El solver ha convergido; finalizando resultados…</translation>
    </message>
    <message>
        <source>Window %1/%2</source>
        <translation>Intervalo %1/%2</translation>
    </message>
    <message>
        <source>Iterations: %1</source>
        <translation>Iteraciones: %1</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Métricas</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <translation>Transcurrido</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Restante</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>it/s</source>
        <translation>it/s</translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation>Explotab.</translation>
    </message>
    <message>
        <source>Measuring...</source>
        <translation>Midiendo…</translation>
    </message>
</context>
<context>
    <name>ProgressRing</name>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>ProjectFiles</name>
    <message>
        <source>Velmora Project (*.velmoraproj)</source>
        <translation>Proyecto de Velmora (*.velmoraproj)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Guardar proyecto</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Abrir proyecto</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>error desconocido</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>ProjectHeader</name>
    <message>
        <source>Project Setup</source>
        <translation>Configurar proyecto</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Setup Required</source>
        <translation>Incompleto</translation>
    </message>
    <message>
        <source>Solve RAM: %1</source>
        <translation>RAM necesaria: %1</translation>
    </message>
    <message>
        <source>Available RAM: %1</source>
        <translation>RAM disponible: %1</translation>
    </message>
    <message>
        <source>Continue to Solve →</source>
        <translation>Continuar al cálculo →</translation>
    </message>
    <message>
        <source>Solve RAM: being estimated…</source>
        <translation>RAM necesaria: estimando…</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Take back the last change (Ctrl+Z)</source>
        <translation>Deshacer el último cambio (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Bring back what was undone (Ctrl+Shift+Z)</source>
        <translation>Rehacer lo deshecho (Ctrl+Mayús+Z)</translation>
    </message>
</context>
<context>
    <name>QuestionDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>QuickActionsCard</name>
    <message>
        <source>Quick Actions</source>
        <translation>Acciones rápidas</translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation>Nuevo cálculo</translation>
    </message>
    <message>
        <source>Configure board, ranges, tree</source>
        <translation>Elegir board, rangos, árbol</translation>
    </message>
    <message>
        <source>Quick Solve</source>
        <translation>Cálculo rápido</translation>
    </message>
    <message>
        <source>Use default settings</source>
        <translation>Con los ajustes por defecto</translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation>Importar rango</translation>
    </message>
    <message>
        <source>Load from file</source>
        <translation>Cargar desde archivo</translation>
    </message>
</context>
<context>
    <name>RangeCard</name>
    <message>
        <source>OOP Range</source>
        <translation>Rango OOP</translation>
    </message>
    <message>
        <source>IP Range</source>
        <translation>Rango IP</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>%1 combos (%2%)</source>
        <translation>Combos: %1 (%2%)</translation>
    </message>
</context>
<context>
    <name>RangeEditor</name>
    <message>
        <source>Range</source>
        <translation>Rango</translation>
    </message>
    <message>
        <source>%1 hands</source>
        <translation>Manos: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>p.&#xa0;ej., AA, KK, AKs, QQ+ o 50%</translation>
    </message>
</context>
<context>
    <name>RangeLibraries</name>
    <message>
        <source>Standard Ranges</source>
        <translation>Rangos estándar</translation>
    </message>
    <message>
        <source>Population Ranges</source>
        <translation>Rangos de población</translation>
    </message>
    <message>
        <source>Custom Ranges</source>
        <translation>Rangos propios</translation>
    </message>
    <message>
        <source>Please enter a name.</source>
        <translation>Introduzca un nombre.</translation>
    </message>
    <message>
        <source>No range content to import.</source>
        <translation>No hay ningún rango que importar.</translation>
    </message>
    <message>
        <source>Import failed.</source>
        <translation>Error al importar.</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Error al exportar: %1</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>error desconocido</translation>
    </message>
    <message>
        <source>Failed to load bundled standard presets (resource file missing/empty).</source>
        <translation>No se pudieron cargar los rangos estándar incluidos (el archivo de recursos falta o está vacío).</translation>
    </message>
    <message>
        <source>Failed to load bundled presets: </source>
        <translation>No se pudieron cargar los rangos incluidos: </translation>
    </message>
</context>
<context>
    <name>RangeTextField</name>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>p.&#xa0;ej., AA, KK, AKs, QQ+ o 50%</translation>
    </message>
</context>
<context>
    <name>RecentRunsCard</name>
    <message>
        <source>Recent Runs</source>
        <translation>Cálculos recientes</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>No runs yet — click Start Solve to record a run here.</source>
        <translation>Aún no hay cálculos: al pulsar «Iniciar cálculo» aparecerá uno aquí.</translation>
    </message>
</context>
<context>
    <name>ResultNotices</name>
    <message>
        <source>The last solve was cancelled. These are the results of the solve before.</source>
        <translation>El último cálculo se canceló. Estos son los resultados del cálculo anterior.</translation>
    </message>
    <message>
        <source>The last solve was not started: %1. These are the results of the solve before.</source>
        <translation>El último cálculo no se inició: %1. Estos son los resultados del cálculo anterior.</translation>
    </message>
    <message>
        <source>The last solve failed: %1. These are the results of the solve before.</source>
        <translation>El último cálculo falló: %1. Estos son los resultados del cálculo anterior.</translation>
    </message>
    <message>
        <source>Solving. These are the results of the solve before, until the new ones are there. %1</source>
        <translation>Calculando. Hasta que estén los nuevos resultados, se muestran los del cálculo anterior. %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Figures of this node are missing: %1</source>
        <translation>Faltan datos de este nodo: %1</translation>
    </message>
    <message>
        <source>The node locks (%1) are not solved yet. At their nodes the grid, the buckets and the hands show a preview; all other figures are those from before.</source>
        <translation>Los node-locks (%1) aún no se han calculado. En sus nodos, la matriz, las categorías y las manos muestran una vista previa; los demás valores son los anteriores.</translation>
    </message>
    <message>
        <source>The node locks of this result were removed. It still shows the solve with them.</source>
        <translation>Se han quitado los node-locks de este resultado. Aún muestra el cálculo hecho con ellos.</translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation>Recalcular</translation>
    </message>
    <message>
        <source>The node locks keep the exploitability from falling any further. The solve ended above its target.</source>
        <translation>Los node-locks impiden que la explotabilidad baje más. El cálculo terminó por encima de su objetivo.</translation>
    </message>
    <message>
        <source>Setup has changed since this solve</source>
        <translation>«Proyecto» ha cambiado desde este cálculo</translation>
    </message>
    <message>
        <source>Solve again</source>
        <translation>Volver a calcular</translation>
    </message>
    <message>
        <source>Take back the setup of this result</source>
        <translation>Recuperar el proyecto de este resultado</translation>
    </message>
</context>
<context>
    <name>ResultsHeader</name>
    <message>
        <source>Strategy View</source>
        <translation>Vista de estrategia</translation>
    </message>
    <message>
        <source>%1 to act</source>
        <translation>Turno de %1</translation>
    </message>
    <message>
        <source>EV (OOP)</source>
        <translation>EV (OOP)</translation>
    </message>
    <message>
        <source>EV (IP)</source>
        <translation>EV (IP)</translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation>Explotabilidad</translation>
    </message>
    <message>
        <source>Range view</source>
        <translation>Vista de rangos</translation>
    </message>
    <message>
        <source>Play vs solution</source>
        <translation>Contra la solución</translation>
    </message>
</context>
<context>
    <name>RoleChoice</name>
    <message>
        <source>Play as OOP</source>
        <translation>Jugar como OOP</translation>
    </message>
    <message>
        <source>Play as both</source>
        <translation>Jugar con ambos</translation>
    </message>
    <message>
        <source>Play as IP</source>
        <translation>Jugar como IP</translation>
    </message>
</context>
<context>
    <name>RunHistory</name>
    <message>
        <source>Target %1% (≈ %2) • Threads %3</source>
        <translation>Objetivo %1% (≈ %2) • Hilos %3</translation>
    </message>
    <message>
        <source>At most %1 iterations</source>
        <translation>Iteraciones: máximo %1</translation>
    </message>
    <message>
        <source>%1 iterations</source>
        <translation>Iteraciones: %1</translation>
    </message>
</context>
<context>
    <name>RunRow</name>
    <message>
        <source>Running</source>
        <translation>En curso</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Completado</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fallido</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Rechazado</translation>
    </message>
</context>
<context>
    <name>SeatLibrary</name>
    <message>
        <source>Please enter a name.</source>
        <translation>Introduzca un nombre.</translation>
    </message>
    <message>
        <source>Current range is empty.</source>
        <translation>El rango actual está vacío.</translation>
    </message>
    <message>
        <source>Please enter a folder name.</source>
        <translation>Introduzca un nombre de carpeta.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Restablecer valores</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Guardar ajustes</translation>
    </message>
</context>
<context>
    <name>SettingsProfilesCard</name>
    <message>
        <source>Load settings</source>
        <translation>Cargar perfil</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Guardar perfil</translation>
    </message>
    <message>
        <source>Please enter a name.</source>
        <translation>Introduzca un nombre.</translation>
    </message>
    <message>
        <source>Save Settings Profile</source>
        <translation>Guardar perfil de ajustes</translation>
    </message>
    <message>
        <source>Profile name:</source>
        <translation>Nombre del perfil:</translation>
    </message>
    <message>
        <source>e.g., 100bb rake-free (fast)</source>
        <translation>p.&#xa0;ej., 100bb sin rake (rápido)</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>♠</source>
        <translation>♠</translation>
    </message>
    <message>
        <source>Dunmarrow</source>
        <translation>Dunmarrow</translation>
    </message>
    <message>
        <source>Poker Solver</source>
        <translation>Solver de póker</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Overview &amp; quick actions</source>
        <translation>Resumen y acciones rápidas</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <source>Board, ranges, tree</source>
        <translation>Board, rangos, árbol</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Cálculo</translation>
    </message>
    <message>
        <source>Run solver</source>
        <translation>Ejecutar el solver</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Browse strategies</source>
        <translation>Explorar estrategias</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>v0.1.0 dev</source>
        <translation>v0.1.0 dev</translation>
    </message>
</context>
<context>
    <name>SizingCard</name>
    <message>
        <source>OOP</source>
        <translation>OOP</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Flop</source>
        <translation>Flop</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Turn</translation>
    </message>
    <message>
        <source>River</source>
        <translation>River</translation>
    </message>
    <message>
        <source>OOP Sizing</source>
        <translation>Sizings OOP</translation>
    </message>
    <message>
        <source>IP Sizing</source>
        <translation>Sizings IP</translation>
    </message>
    <message>
        <source>Bet sizes (%)</source>
        <translation>Apuestas (%)</translation>
    </message>
    <message>
        <source>Raise sizes (%)</source>
        <translation>Raises (%)</translation>
    </message>
    <message>
        <source>Add All-In</source>
        <translation>Con all-in</translation>
    </message>
    <message>
        <source>Don&apos;t donk</source>
        <translation>Sin donk</translation>
    </message>
    <message>
        <source>Add all-in if jam less than</source>
        <translation>All-in si jam menor que</translation>
    </message>
    <message>
        <source>e.g. 30</source>
        <translation>p.&#xa0;ej. 30</translation>
    </message>
    <message>
        <source>% pot</source>
        <translation>% del bote</translation>
    </message>
</context>
<context>
    <name>SolveActivityCard</name>
    <message>
        <source>Solve Activity</source>
        <translation>Actividad de cálculo</translation>
    </message>
    <message>
        <source>Last 52 weeks</source>
        <translation>Últimas 52 semanas</translation>
    </message>
</context>
<context>
    <name>SolveFollower</name>
    <message>
        <source>Iteration %1 | exploitability=%2</source>
        <translation>Iteración %1 | explotabilidad=%2</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Error: %1</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Done: node locks keep the exploitability from falling</source>
        <translation>Listo: los node-locks impiden que baje la explotabilidad</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>Building the cards and the tree...</source>
        <translation>Construyendo las cartas y el árbol…</translation>
    </message>
    <message>
        <source>Preparing the solver...</source>
        <translation>Preparando el solver…</translation>
    </message>
    <message>
        <source>Starting the solver...</source>
        <translation>Iniciando el solver…</translation>
    </message>
    <message>
        <source>Computing the results...</source>
        <translation>Calculando los resultados…</translation>
    </message>
    <message>
        <source>Collecting the tree...</source>
        <translation>Recopilando el árbol…</translation>
    </message>
</context>
<context>
    <name>SolvePage</name>
    <message>
        <source>Solve</source>
        <translation>Cálculo</translation>
    </message>
    <message>
        <source>Run the CFR solver and monitor progress in real-time.</source>
        <translation>Ejecutar el solver CFR y seguir su progreso en tiempo real.</translation>
    </message>
    <message>
        <source>Finalizing</source>
        <translation>Finalizando</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En curso</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
</context>
<context>
    <name>StatusChip</name>
    <message>
        <source>Finalizing</source>
        <translation>Finalizando</translation>
    </message>
    <message>
        <source>Solving</source>
        <translation>Calculando</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>%1 %2%</source>
        <translation>%1 %2%</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>StrategyColumn</name>
    <message>
        <source>Strategy by Hand</source>
        <translation>Estrategia por mano</translation>
    </message>
    <message>
        <source>Strategy by Hand (preview, not solved yet)</source>
        <translation>Estrategia por mano (vista previa, aún sin calcular)</translation>
    </message>
</context>
<context>
    <name>StrategyViews</name>
    <message>
        <source>Buckets</source>
        <translation>Categorías</translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation>Detalles de las manos</translation>
    </message>
</context>
<context>
    <name>SystemCard</name>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Motor</translation>
    </message>
    <message>
        <source>Dunmarrow Core</source>
        <translation>Dunmarrow Core</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Hilos</translation>
    </message>
    <message>
        <source>%1 available</source>
        <translation>Disponibles: %1</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>%1 (%2 free)</source>
        <translation>%1 (libre: %2)</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Dunmarrow</source>
        <translation>Dunmarrow</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <source>Start a new project (or load one) from Home to enable Project</source>
        <translation>Cree (o cargue) un proyecto en «Inicio» para activar «Proyecto»</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Cálculo</translation>
    </message>
    <message>
        <source>Fill board, ranges, and sizings to enable Solve</source>
        <translation>Complete board, rangos y sizings para activar «Cálculo»</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Run a solve to enable Results</source>
        <translation>Ejecute un cálculo para activar «Resultados»</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>%1. Still missing: %2.</source>
        <translation>%1. Aún falta: %2.</translation>
    </message>
</context>
<context>
    <name>TrainerStatsCard</name>
    <message>
        <source>Play vs. Solution</source>
        <translation>Contra la solución</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Clear Play vs. Solution Stats</source>
        <translation>Borrar estadísticas «Contra la solución»</translation>
    </message>
    <message>
        <source>Hands (Today / Total)</source>
        <translation>Manos (hoy / total)</translation>
    </message>
    <message>
        <source>Accuracy (Today / Total)</source>
        <translation>Aciertos (hoy / total)</translation>
    </message>
    <message>
        <source>Avg EV Loss (Today / Total)</source>
        <translation>EV medio perdido (hoy / total)</translation>
    </message>
    <message>
        <source>EV</source>
        <translation>EV</translation>
    </message>
</context>
<context>
    <name>TreeLevel</name>
    <message>
        <source>Available actions</source>
        <translation>Acciones posibles</translation>
    </message>
    <message>
        <source>%1 options</source>
        <translation>Opciones: %1</translation>
    </message>
    <message>
        <source>Deal %1</source>
        <translation>Repartir %1</translation>
    </message>
    <message>
        <source>River</source>
        <translation>River</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Turn</translation>
    </message>
</context>
<context>
    <name>TreeNode</name>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>Deal</source>
        <translation>Reparto</translation>
    </message>
    <message>
        <source>Pot: %1</source>
        <translation>Bote: %1</translation>
    </message>
    <message>
        <source>Freq: %1%</source>
        <translation>Frec.: %1%</translation>
    </message>
    <message>
        <source>EV: %1%2</source>
        <translation>EV: %1%2</translation>
    </message>
    <message>
        <source>Collapse %1</source>
        <translation>Contraer %1</translation>
    </message>
    <message>
        <source>Expand %1</source>
        <translation>Expandir %1</translation>
    </message>
</context>
<context>
    <name>TreeWalk</name>
    <message>
        <source>Root</source>
        <translation>Raíz</translation>
    </message>
</context>
<context>
    <name>UpdateManager</name>
    <message>
        <source>Update URL is not configured.</source>
        <translation>La URL de actualización no está configurada.</translation>
    </message>
    <message>
        <source>Update check failed: %1</source>
        <translation>Error al buscar actualizaciones: %1</translation>
    </message>
    <message>
        <source>Invalid update response (HTTP %1).</source>
        <translation>Respuesta de actualización no válida (HTTP %1).</translation>
    </message>
    <message>
        <source>No download URL available.</source>
        <translation>No hay ninguna URL de descarga disponible.</translation>
    </message>
</context>
<context>
    <name>UpdatesCard</name>
    <message>
        <source>Last checked: %1</source>
        <translation>Última comprobación: %1</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Current version: %1</source>
        <translation>Versión actual: %1</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocida</translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation>Actualización disponible: %1</translation>
    </message>
    <message>
        <source>Checking...</source>
        <translation>Comprobando…</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>Download update</source>
        <translation>Descargar actualización</translation>
    </message>
</context>
<context>
    <name>card_names</name>
    <message>
        <source>spades</source>
        <translation>picas</translation>
    </message>
    <message>
        <source>hearts</source>
        <translation>corazones</translation>
    </message>
    <message>
        <source>diamonds</source>
        <translation>diamantes</translation>
    </message>
    <message>
        <source>clubs</source>
        <translation>tréboles</translation>
    </message>
    <message>
        <source>Ace</source>
        <translation>As</translation>
    </message>
    <message>
        <source>King</source>
        <translation>Rey</translation>
    </message>
    <message>
        <source>Queen</source>
        <translation>Dama</translation>
    </message>
    <message>
        <source>Jack</source>
        <translation>Jota</translation>
    </message>
    <message>
        <source>Ten</source>
        <translation>Diez</translation>
    </message>
    <message>
        <source>Nine</source>
        <translation>Nueve</translation>
    </message>
    <message>
        <source>Eight</source>
        <translation>Ocho</translation>
    </message>
    <message>
        <source>Seven</source>
        <translation>Siete</translation>
    </message>
    <message>
        <source>Six</source>
        <translation>Seis</translation>
    </message>
    <message>
        <source>Five</source>
        <translation>Cinco</translation>
    </message>
    <message>
        <source>Four</source>
        <translation>Cuatro</translation>
    </message>
    <message>
        <source>Three</source>
        <translation>Tres</translation>
    </message>
    <message>
        <source>Two</source>
        <translation>Dos</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>range_library_names</name>
    <message>
        <source>6-max</source>
        <translation>6-max</translation>
    </message>
    <message>
        <source>Heads up</source>
        <translation>Heads-up</translation>
    </message>
    <message>
        <source>No rake</source>
        <translation>Sin rake</translation>
    </message>
    <message>
        <source>50nl rake</source>
        <translation>Rake NL50</translation>
    </message>
    <message>
        <source>100nl rake</source>
        <translation>Rake NL100</translation>
    </message>
    <message>
        <source>200nl rake</source>
        <translation>Rake NL200</translation>
    </message>
    <message>
        <source>500nl rake</source>
        <translation>Rake NL500</translation>
    </message>
    <message>
        <source>RFI</source>
        <translation>RFI</translation>
    </message>
    <message>
        <source>vs RFI</source>
        <translation>vs RFI</translation>
    </message>
    <message>
        <source>vs 3bet</source>
        <translation>vs 3bet</translation>
    </message>
    <message>
        <source>vs 4bet</source>
        <translation>vs 4bet</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Call</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Fold</translation>
    </message>
    <message>
        <source>3bet</source>
        <translation>3bet</translation>
    </message>
    <message>
        <source>4bet</source>
        <translation>4bet</translation>
    </message>
    <message>
        <source>Limp</source>
        <translation>Limp</translation>
    </message>
    <message>
        <source>Limp-call</source>
        <translation>Limp-call</translation>
    </message>
    <message>
        <source>Limp-3b</source>
        <translation>Limp-3b</translation>
    </message>
    <message>
        <source>Call raise</source>
        <translation>Call raise</translation>
    </message>
    <message>
        <source>Check back</source>
        <translation>Check back</translation>
    </message>
    <message>
        <source>3b</source>
        <translation>3b</translation>
    </message>
    <message>
        <source>4b</source>
        <translation>4b</translation>
    </message>
    <message>
        <source>Call 3b</source>
        <translation>Call 3b</translation>
    </message>
    <message>
        <source>Call 4b</source>
        <translation>Call 4b</translation>
    </message>
    <message>
        <source>3b cold call</source>
        <translation>Cold call 3b</translation>
    </message>
    <message>
        <source>Bomb pot</source>
        <translation>Bomb pot</translation>
    </message>
    <message>
        <source>Weaker regs</source>
        <translation>Regs más débiles</translation>
    </message>
    <message>
        <source>Tighter reg</source>
        <translation>Reg más tight</translation>
    </message>
    <message>
        <source>Looser reg</source>
        <translation>Reg más loose</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otros</translation>
    </message>
    <message>
        <source>Nit</source>
        <translation>Nit</translation>
    </message>
    <message>
        <source>Overfolder</source>
        <translation>Overfolder</translation>
    </message>
    <message>
        <source>Passive</source>
        <translation>Pasivo</translation>
    </message>
    <message>
        <source>Passive tight</source>
        <translation>Pasivo tight</translation>
    </message>
    <message>
        <source>Passive neutral</source>
        <translation>Pasivo neutral</translation>
    </message>
    <message>
        <source>Passive loose</source>
        <translation>Pasivo loose</translation>
    </message>
    <message>
        <source>Extreme loose</source>
        <translation>Ultraloose</translation>
    </message>
    <message>
        <source>Loose aggressive</source>
        <translation>Loose agresivo</translation>
    </message>
    <message>
        <source>Standard LAG</source>
        <translation>LAG estándar</translation>
    </message>
    <message>
        <source>Maniac</source>
        <translation>Maniac</translation>
    </message>
    <message>
        <source>vs %1 RFI</source>
        <translation>vs %1 RFI</translation>
    </message>
    <message>
        <source>%1 vs %2 3bet</source>
        <translation>%1 vs %2 3bet</translation>
    </message>
    <message>
        <source>%1 3bet vs %2 4bet</source>
        <translation>%1 3bet vs %2 4bet</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 (VPIP %2)</source>
        <translation>%1 (VPIP %2)</translation>
    </message>
</context>
<context>
    <name>solve_activity</name>
    <message>
        <source>Mon</source>
        <translation>lun</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>mar</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>mié</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>jue</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>vie</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>sáb</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>dom</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>ene</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>feb</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mar</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>abr</translation>
    </message>
    <message>
        <source>May</source>
        <translation>may</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>jun</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>jul</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>ago</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>sep</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>oct</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>dic</translation>
    </message>
    <message>
        <source>%1 (future)</source>
        <translation>%1 (futuro)</translation>
    </message>
    <message>
        <source>Solves: %1</source>
        <translation>Cálculos: %1</translation>
    </message>
    <message>
        <source>Avg iters: %1</source>
        <translation>Iter. media: %1</translation>
    </message>
    <message>
        <source>Avg expl: %1</source>
        <translation>Expl. media: %1</translation>
    </message>
</context>
</TS>

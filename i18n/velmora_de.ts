<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en_US">
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
        <translation>Aktionshäufigkeiten</translation>
    </message>
</context>
<context>
    <name>ActivityGrid</name>
    <message>
        <source>Solve Activity</source>
        <translation>Rechenaktivität</translation>
    </message>
    <message>
        <source>Last 52 weeks</source>
        <translation>Letzte 52 Wochen</translation>
    </message>
</context>
<context>
    <name>AppController</name>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Startet&#xa0;…</translation>
    </message>
    <message>
        <source>No previous solve config (solve once first)</source>
        <translation>Keine frühere Konfiguration (zuerst einmal berechnen)</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Wird abgebrochen&#xa0;…</translation>
    </message>
    <message>
        <source>Another file is still being saved or opened</source>
        <translation>Eine andere Datei wird noch gespeichert oder geöffnet</translation>
    </message>
    <message>
        <source>Loaded project (%1 strategy nodes, %2 combo nodes)</source>
        <translation>Projekt geladen (Strategieknoten: %1, Combo-Knoten: %2)</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <translation>Datei konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Unrecognized project format</source>
        <translation>Unbekanntes Projektformat</translation>
    </message>
    <message>
        <source>Unsupported project version</source>
        <translation>Nicht unterstützte Projektversion</translation>
    </message>
    <message>
        <source>Invalid JSON</source>
        <translation>Ungültiges JSON</translation>
    </message>
    <message>
        <source>Failed to save file: %1</source>
        <translation>Speichern fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Failed to open file: %1</source>
        <translation>Öffnen fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Estimating the memory...</source>
        <translation>Speicherbedarf wird geschätzt&#xa0;…</translation>
    </message>
    <message>
        <source>Not started: the solve needs the memory of the result on view</source>
        <translation>Nicht gestartet: Die Berechnung braucht den Speicher des angezeigten Ergebnisses</translation>
    </message>
    <message>
        <source>Not enough RAM to solve: %1 needed, %2 available</source>
        <translation>Zu wenig RAM für die Berechnung: %1 nötig, %2 verfügbar</translation>
    </message>
    <message>
        <source>Waiting for the cancelled solve to stop...</source>
        <translation>Warten auf das Ende der abgebrochenen Berechnung&#xa0;…</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>There is not enough memory for the answers of this node</source>
        <translation>Der Speicher reicht für die Antworten dieses Knotens nicht aus</translation>
    </message>
    <message>
        <source>The board of the project is impossible: %1</source>
        <translation>Das Board des Projekts ist unmöglich: %1</translation>
    </message>
    <message>
        <source>Invalid JSON at byte %1, in %2</source>
        <translation>Ungültiges JSON bei Byte %1, in %2</translation>
    </message>
    <message>
        <source>Not ready: enter a valid board first</source>
        <translation>Nicht bereit: zuerst ein gültiges Board eingeben</translation>
    </message>
    <message>
        <source>Not ready: select at least one hand in both ranges</source>
        <translation>Nicht bereit: in beiden Ranges mindestens eine Hand wählen</translation>
    </message>
    <message>
        <source>Not ready: fill out both OOP and IP sizing</source>
        <translation>Nicht bereit: Einsatzgrößen von OOP und IP ausfüllen</translation>
    </message>
    <message>
        <source>Solve failed: %1</source>
        <translation>Berechnung fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Board %1 | iters %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5</source>
        <translation>Board %1 | Iter. %2 | Expl.≈%3 | EV(oop)=%4 EV(ip)=%5</translation>
    </message>
    <message>
        <source>Invalid/non-local file URL</source>
        <translation>Ungültige oder nicht lokale Datei-URL</translation>
    </message>
    <message>
        <source>Empty file path</source>
        <translation>Leerer Dateipfad</translation>
    </message>
</context>
<context>
    <name>AppShell</name>
    <message>
        <source>Start a new project (or load one) from Home to enable Project</source>
        <translation>Unter „Start“ ein Projekt anlegen (oder laden), um „Projekt“ freizuschalten</translation>
    </message>
    <message>
        <source>The memory that this solve takes could not be estimated.</source>
        <translation>Der Speicherbedarf dieser Berechnung konnte nicht geschätzt werden.</translation>
    </message>
    <message>
        <source>Not enough memory: this solve takes %1, and %2 is available.</source>
        <translation>Zu wenig Speicher: Diese Berechnung braucht %1, verfügbar sind %2.</translation>
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
        <translation>Neuer Spot</translation>
    </message>
    <message>
        <source>Node locks</source>
        <translation>Node-Locks</translation>
    </message>
    <message>
        <source>Node locks (%1) are set on the tree of this spot. Apply them in this solve?</source>
        <translation>Im Baum dieses Spots sind Node-Locks gesetzt (%1). In dieser Berechnung anwenden?</translation>
    </message>
    <message>
        <source>Solve without locks</source>
        <translation>Ohne Locks berechnen</translation>
    </message>
    <message>
        <source>Apply the locks</source>
        <translation>Locks anwenden</translation>
    </message>
    <message>
        <source>A solve is running, and it will be cancelled.</source>
        <translation>Es läuft eine Berechnung; sie wird abgebrochen.</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>The spot or its results are not saved.</source>
        <translation>Der Spot oder seine Ergebnisse sind nicht gespeichert.</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Nicht speichern</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel the solve</source>
        <translation>Berechnung abbrechen</translation>
    </message>
    <message>
        <source>Take back your spot?</source>
        <translation>Spot wiederherstellen?</translation>
    </message>
    <message>
        <source>Dunmarrow did not close properly. The spot that you were editing was kept on %1.</source>
        <translation>Dunmarrow wurde nicht ordnungsgemäß beendet. Der zuletzt bearbeitete Spot wurde gesichert (%1).</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Take it back</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Not enough memory for both</source>
        <translation>Zu wenig Speicher für beides</translation>
    </message>
    <message>
        <source>This solve needs %1, and %2 are available. It can start if the solver of the result on view is dropped: of that result only what was looked at so far stays.</source>
        <translation>Diese Berechnung braucht %1, verfügbar sind %2. Sie kann starten, wenn der Solver des angezeigten Ergebnisses verworfen wird: Von diesem Ergebnis bleibt dann nur, was bisher angesehen wurde.</translation>
    </message>
    <message>
        <source>Save first</source>
        <translation>Erst speichern</translation>
    </message>
    <message>
        <source>Solve without saving</source>
        <translation>Ohne Speichern berechnen</translation>
    </message>
    <message>
        <source>%1 pot %2</source>
        <translation>%1 Pot %2</translation>
    </message>
    <message>
        <source>Saved %1 at %2</source>
        <translation>%1 um %2 gespeichert</translation>
    </message>
</context>
<context>
    <name>AppearanceCard</name>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>Dark Mode</source>
        <translation>Dunkler Modus</translation>
    </message>
    <message>
        <source>Use dark color scheme throughout the interface</source>
        <translation>Dunkles Farbschema für die gesamte Oberfläche verwenden</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Change the app language (takes effect immediately)</source>
        <translation>Sprache der App ändern (wirkt sofort)</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemsprache</translation>
    </message>
    <message>
        <source>Accent Color</source>
        <translation>Akzentfarbe</translation>
    </message>
    <message>
        <source>Customize the app highlight color (buttons, accents, clubs/check).</source>
        <translation>Akzentfarbe der App anpassen (Schaltflächen, Akzente, Kreuz/Check).</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Gold</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
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
        <translation>Handkategorien</translation>
    </message>
    <message>
        <source>%1 shown</source>
        <translation>Angezeigt: %1</translation>
    </message>
</context>
<context>
    <name>BusyLabel</name>
    <message>
        <source>Loading…</source>
        <translation>Wird geladen&#xa0;…</translation>
    </message>
</context>
<context>
    <name>CardPicker</name>
    <message>
        <source>Cards</source>
        <translation>Karten</translation>
    </message>
</context>
<context>
    <name>CardPickerDialog</name>
    <message>
        <source>Select card</source>
        <translation>Karte wählen</translation>
    </message>
    <message>
        <source>River card</source>
        <translation>River-Karte</translation>
    </message>
    <message>
        <source>Turn card</source>
        <translation>Turn-Karte</translation>
    </message>
    <message>
        <source>Flop card</source>
        <translation>Flop-Karte</translation>
    </message>
    <message>
        <source>Clear card</source>
        <translation>Karte entfernen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>CardPickerTile</name>
    <message>
        <source>Already used</source>
        <translation>Schon vergeben</translation>
    </message>
</context>
<context>
    <name>ChancePicker</name>
    <message>
        <source>Choose River Card</source>
        <translation>River-Karte wählen</translation>
    </message>
    <message>
        <source>Choose Turn Card</source>
        <translation>Turn-Karte wählen</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Zufällig</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>%1 can&apos;t be dealt here.</source>
        <translation>%1 kann hier nicht ausgeteilt werden.</translation>
    </message>
    <message>
        <source>Arrow keys and Return choose a card, or type it: 7c.</source>
        <translation>Karte mit Pfeiltasten und Eingabetaste wählen oder eintippen: 7c.</translation>
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
        <translation>Statistik „Gegen die Lösung“ löschen</translation>
    </message>
    <message>
        <source>Clear all Play vs. Solution statistics (today + total)?</source>
        <translation>Die gesamte Statistik „Gegen die Lösung“ löschen (heute + gesamt)?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
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
        <translation>Rechenleistung</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Threads</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max.</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Präzision</translation>
    </message>
    <message>
        <source>The solver computes in Float32, whatever is chosen here.</source>
        <translation>Der Solver rechnet in Float32, unabhängig von dieser Auswahl.</translation>
    </message>
</context>
<context>
    <name>ConfigurationCard</name>
    <message>
        <source>flop</source>
        <translation>Flop</translation>
    </message>
    <message>
        <source>turn</source>
        <translation>Turn</translation>
    </message>
    <message>
        <source>river</source>
        <translation>River</translation>
    </message>
    <message>
        <source>OOP: don&apos;t donk on %1</source>
        <translation>OOP: kein Donk am %1</translation>
    </message>
    <message>
        <source>OOP: add all-in on %1</source>
        <translation>OOP: All-in am %1 hinzufügen</translation>
    </message>
    <message>
        <source>IP: add all-in on %1</source>
        <translation>IP: All-in am %1 hinzufügen</translation>
    </message>
    <message>
        <source>OOP: add all-in if jam &lt; %1% pot</source>
        <translation>OOP: All-in hinzufügen, wenn Jam &lt; %1% Pot</translation>
    </message>
    <message>
        <source>IP: add all-in if jam &lt; %1% pot</source>
        <translation>IP: All-in hinzufügen, wenn Jam &lt; %1% Pot</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfiguration</translation>
    </message>
    <message>
        <source>Street</source>
        <translation>Street</translation>
    </message>
    <message>
        <source>Pot / Stack</source>
        <translation>Pot / Stack</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Ziel</translation>
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
        <translation>%1% (Cap %2)</translation>
    </message>
    <message>
        <source>Bet sizes</source>
        <translation>Bet-Größen</translation>
    </message>
    <message>
        <source>F %1/%2 • T %3/%4 • R %5/%6</source>
        <translation>F %1/%2 • T %3/%4 • R %5/%6</translation>
    </message>
    <message>
        <source>Options enabled</source>
        <translation>Aktive Optionen</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Steuerung</translation>
    </message>
    <message>
        <source>Solving...</source>
        <translation>Wird berechnet&#xa0;…</translation>
    </message>
    <message>
        <source>Start Solve</source>
        <translation>Berechnung starten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>View Results →</source>
        <translation>Zu den Ergebnissen →</translation>
    </message>
</context>
<context>
    <name>CustomActions</name>
    <message>
        <source>Are you sure you want to delete this folder?</source>
        <translation>Diesen Ordner wirklich löschen?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this range?</source>
        <translation>Diese Range wirklich löschen?</translation>
    </message>
    <message>
        <source>This will also delete %1 range(s). This cannot be undone.</source>
        <translation>Auch alle Ranges darin werden gelöscht (Anzahl: %1). Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Save current range…</source>
        <translation>Range speichern&#xa0;…</translation>
    </message>
    <message>
        <source>Import range…</source>
        <translation>Range importieren&#xa0;…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Ordner anlegen&#xa0;…</translation>
    </message>
    <message>
        <source>Delete selected…</source>
        <translation>Auswahl löschen&#xa0;…</translation>
    </message>
    <message>
        <source>Save OOP range</source>
        <translation>OOP-Range speichern</translation>
    </message>
    <message>
        <source>Save IP range</source>
        <translation>IP-Range speichern</translation>
    </message>
    <message>
        <source>Name this range:</source>
        <translation>Name der Range:</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB (default)</source>
        <translation>z.&#xa0;B.&#xa0;BTN vs BB (Standard)</translation>
    </message>
    <message>
        <source>Add folder (OOP)</source>
        <translation>Ordner anlegen (OOP)</translation>
    </message>
    <message>
        <source>Add folder (IP)</source>
        <translation>Ordner anlegen (IP)</translation>
    </message>
    <message>
        <source>Folder name:</source>
        <translation>Ordnername:</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB</source>
        <translation>z.&#xa0;B.&#xa0;BTN vs BB</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>Delete range</source>
        <translation>Range löschen</translation>
    </message>
</context>
<context>
    <name>DeleteDialog</name>
    <message>
        <source>This cannot be undone.</source>
        <translation>Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>DeveloperActions</name>
    <message>
        <source>Override</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Export standard…</source>
        <translation>Standard exportieren&#xa0;…</translation>
    </message>
    <message>
        <source>Export population…</source>
        <translation>Population exportieren&#xa0;…</translation>
    </message>
    <message>
        <source>Clear overrides…</source>
        <translation>Überschreibungen löschen&#xa0;…</translation>
    </message>
    <message>
        <source>Export Standard Ranges</source>
        <translation>Standard-Ranges exportieren</translation>
    </message>
    <message>
        <source>Export Population Ranges</source>
        <translation>Population-Ranges exportieren</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Clear standard overrides</source>
        <translation>Überschriebene Standard-Ranges löschen</translation>
    </message>
    <message>
        <source>Clear population overrides</source>
        <translation>Überschriebene Population-Ranges löschen</translation>
    </message>
    <message>
        <source>Clear all locally overridden standard ranges for %1?</source>
        <translation>Alle lokal überschriebenen Standard-Ranges für %1 löschen?</translation>
    </message>
    <message>
        <source>Clear all locally overridden population ranges for %1?</source>
        <translation>Alle lokal überschriebenen Population-Ranges für %1 löschen?</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>DrillBar</name>
    <message>
        <source>Stop drill</source>
        <translation>Drill beenden</translation>
    </message>
    <message>
        <source>Drill spot</source>
        <translation>Spot drillen</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Schreibtisch</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Downloads</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home-Ordner</translation>
    </message>
    <message>
        <source>There is no folder “%1”.</source>
        <translation>Den Ordner „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>There is no file “%1” here.</source>
        <translation>Die Datei „%1“ gibt es hier nicht.</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Aufwärts</translation>
    </message>
    <message>
        <source>Nothing to choose here.</source>
        <translation>Hier gibt es nichts zur Auswahl.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Replace file?</source>
        <translation>Datei ersetzen?</translation>
    </message>
    <message>
        <source>“%1” is there already. Saving replaces what it holds.</source>
        <translation>„%1“ gibt es schon. Beim Speichern wird der Inhalt ersetzt.</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
</context>
<context>
    <name>FileList</name>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Folder %1</source>
        <translation>Ordner %1</translation>
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
        <translation>Spieleinstellungen</translation>
    </message>
    <message>
        <source>Starting Pot</source>
        <translation>Start-Pot</translation>
    </message>
    <message>
        <source>e.g., 100</source>
        <translation>z.&#xa0;B.&#xa0;100</translation>
    </message>
    <message>
        <source>Effective Stack</source>
        <translation>Effektiver Stack</translation>
    </message>
    <message>
        <source>Rake (%)</source>
        <translation>Rake (%)</translation>
    </message>
    <message>
        <source>e.g., 5.0</source>
        <translation>z.&#xa0;B.&#xa0;5.0</translation>
    </message>
    <message>
        <source>Rake Cap</source>
        <translation>Rake-Cap</translation>
    </message>
    <message>
        <source>e.g., 0</source>
        <translation>z.&#xa0;B.&#xa0;0</translation>
    </message>
    <message>
        <source>Target Exploitability (%)</source>
        <translation>Ziel (% vom Pot)</translation>
    </message>
    <message>
        <source>e.g., 0.10</source>
        <translation>z.&#xa0;B.&#xa0;0.10</translation>
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
        <translation>Spielbaum</translation>
    </message>
</context>
<context>
    <name>HandBuckets</name>
    <message>
        <source>air</source>
        <translation>Air</translation>
    </message>
    <message>
        <source>back door flush draw</source>
        <translation>Backdoor-Flushdraw</translation>
    </message>
    <message>
        <source>bottom pair</source>
        <translation>Bottom Pair</translation>
    </message>
    <message>
        <source>dry pair</source>
        <translation>Underpair</translation>
    </message>
    <message>
        <source>flush</source>
        <translation>Flush</translation>
    </message>
    <message>
        <source>flush draw</source>
        <translation>Flushdraw</translation>
    </message>
    <message>
        <source>full house</source>
        <translation>Full House</translation>
    </message>
    <message>
        <source>gutter</source>
        <translation>Gutshot</translation>
    </message>
    <message>
        <source>middle pair</source>
        <translation>Middle Pair</translation>
    </message>
    <message>
        <source>missed FD</source>
        <translation>FD verpasst</translation>
    </message>
    <message>
        <source>missed OESD</source>
        <translation>OESD verpasst</translation>
    </message>
    <message>
        <source>missed gutter</source>
        <translation>Gutshot verpasst</translation>
    </message>
    <message>
        <source>open ended straight draw</source>
        <translation>Open-ended Straightdraw</translation>
    </message>
    <message>
        <source>overpair</source>
        <translation>Overpair</translation>
    </message>
    <message>
        <source>quads</source>
        <translation>Quads</translation>
    </message>
    <message>
        <source>set</source>
        <translation>Set</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>Straight</translation>
    </message>
    <message>
        <source>straight flush</source>
        <translation>Straight Flush</translation>
    </message>
    <message>
        <source>top pair</source>
        <translation>Top Pair</translation>
    </message>
    <message>
        <source>trips</source>
        <translation>Trips</translation>
    </message>
    <message>
        <source>two pair</source>
        <translation>Two Pair</translation>
    </message>
</context>
<context>
    <name>HandDetails</name>
    <message>
        <source>Hand details</source>
        <translation>Details zur Hand</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
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
        <translation>Hände</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Überblick</translation>
    </message>
</context>
<context>
    <name>HandDetailsCard</name>
    <message>
        <source>Loading hand combos…</source>
        <translation>Combos werden geladen&#xa0;…</translation>
    </message>
    <message>
        <source>No hand combos to display for this node.</source>
        <translation>Für diesen Knoten gibt es keine Combos.</translation>
    </message>
    <message>
        <source>No combos match the current filters.</source>
        <translation>Keine Combos entsprechen den Filtern.</translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation>Handdetails</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Search (JJ, 56s, JcJd, ...)</source>
        <translation>Suche (JJ, 56s, JcJd,&#xa0;…)</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filter: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Aufheben</translation>
    </message>
</context>
<context>
    <name>HandLog</name>
    <message>
        <source>Hand Log</source>
        <translation>Handverlauf</translation>
    </message>
    <message>
        <source>%1 hands</source>
        <translation>Hände: %1</translation>
    </message>
    <message>
        <source>Hands that you finish are listed here.</source>
        <translation>Hier erscheinen alle beendeten Hände.</translation>
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
        <translation>Perfekt</translation>
    </message>
</context>
<context>
    <name>HandMatrix</name>
    <message>
        <source>Hands</source>
        <translation>Hände</translation>
    </message>
    <message>
        <source>%1, weight %2%</source>
        <translation>%1, Gewicht %2%</translation>
    </message>
</context>
<context>
    <name>HandSummary</name>
    <message>
        <source>Winner: %1</source>
        <translation>Gewinner: %1</translation>
    </message>
    <message>
        <source>Won: %1</source>
        <translation>Gewonnen: %1</translation>
    </message>
    <message>
        <source>Rake: %1</source>
        <translation>Rake: %1</translation>
    </message>
    <message>
        <source>EV lost: %1</source>
        <translation>EV-Verlust: %1</translation>
    </message>
    <message>
        <source>Incorrect: %1</source>
        <translation>Falsch: %1</translation>
    </message>
    <message>
        <source>Correct: %1</source>
        <translation>Richtig: %1</translation>
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
        <translation>Ein moderner, leistungsstarker Hold’em-Solver</translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation>Neue Berechnung</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
</context>
<context>
    <name>ImportRange</name>
    <message>
        <source>Import failed: %1</source>
        <translation>Import fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>unbekannter Fehler</translation>
    </message>
    <message>
        <source>Import failed: file contained no recognizable hands.</source>
        <translation>Import fehlgeschlagen: Die Datei enthält keine erkennbaren Hände.</translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation>Range importieren</translation>
    </message>
    <message>
        <source>Range text (*.txt)</source>
        <translation>Range-Text (*.txt)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Name this range:</source>
        <translation>Name der Range:</translation>
    </message>
    <message>
        <source>e.g., BTN open (custom)</source>
        <translation>z.&#xa0;B.&#xa0;BTN Open (eigene)</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
</context>
<context>
    <name>LibraryColumn</name>
    <message>
        <source>No ranges yet.</source>
        <translation>Noch keine Ranges.</translation>
    </message>
</context>
<context>
    <name>LibraryRow</name>
    <message>
        <source>Open folder</source>
        <translation>Geöffneter Ordner</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
</context>
<context>
    <name>LicensesCard</name>
    <message>
        <source>Licenses</source>
        <translation>Lizenzen</translation>
    </message>
    <message>
        <source>Qt Framework</source>
        <translation>Qt Framework</translation>
    </message>
    <message>
        <source>Runtime (dynamic linking)</source>
        <translation>Laufzeit (dynamisch gelinkt)</translation>
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
        <translation>Multithreading</translation>
    </message>
    <message>
        <source>Apache 2.0</source>
        <translation>Apache 2.0</translation>
    </message>
    <message>
        <source>Third-party notices and license texts are included in the &apos;licenses&apos; folder next to the executable.</source>
        <translation>Hinweise zu Drittanbietern und Lizenztexte liegen im Ordner „licenses“ neben der Programmdatei.</translation>
    </message>
    <message>
        <source>Open licenses folder</source>
        <translation>Lizenzordner öffnen</translation>
    </message>
    <message>
        <source>Open notices</source>
        <translation>Hinweise öffnen</translation>
    </message>
</context>
<context>
    <name>LoadProfileDialog</name>
    <message>
        <source>Please select a profile.</source>
        <translation>Bitte ein Profil auswählen.</translation>
    </message>
    <message>
        <source>Load Settings Profile</source>
        <translation>Einstellungsprofil laden</translation>
    </message>
    <message>
        <source>Choose a saved profile:</source>
        <translation>Gespeichertes Profil wählen:</translation>
    </message>
    <message>
        <source>No saved profiles yet.</source>
        <translation>Noch keine Profile gespeichert.</translation>
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
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Delete settings profile</source>
        <translation>Einstellungsprofil löschen</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this saved profile?</source>
        <translation>Dieses gespeicherte Profil wirklich löschen?</translation>
    </message>
</context>
<context>
    <name>LockModeButtons</name>
    <message>
        <source>Standard mode</source>
        <translation>Standardmodus</translation>
    </message>
    <message>
        <source>Node-lock mode</source>
        <translation>Node-Lock-Modus</translation>
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
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>NodeBox</name>
    <message>
        <source>Pot</source>
        <translation>Pot</translation>
    </message>
    <message>
        <source>Stack (%1)</source>
        <translation>Stack (%1)</translation>
    </message>
    <message>
        <source>To call</source>
        <translation>Zu callen</translation>
    </message>
</context>
<context>
    <name>NodeLockPanel</name>
    <message>
        <source>Node-Locking</source>
        <translation>Node-Locking</translation>
    </message>
    <message>
        <source>Node-locking is only available on decision nodes.</source>
        <translation>Node-Locking geht nur an Entscheidungsknoten.</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>0..1</source>
        <translation>0..1</translation>
    </message>
    <message>
        <source>Reset weights</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation>Neu berechnen</translation>
    </message>
    <message>
        <source>Tip: select an action above, then click a hand cell in the matrix to lock it.</source>
        <translation>Tipp: Oben eine Aktion wählen, dann eine Hand in der Matrix anklicken, um sie zu locken.</translation>
    </message>
    <message>
        <source>Undo reset</source>
        <translation>Reset rückgängig</translation>
    </message>
</context>
<context>
    <name>NodeLocks</name>
    <message>
        <source>The weight must be a number from 0 to 1</source>
        <translation>Das Gewicht muss eine Zahl von 0 bis 1 sein</translation>
    </message>
</context>
<context>
    <name>NodeView</name>
    <message>
        <source>Random river card</source>
        <translation>Zufällige River-Karte</translation>
    </message>
    <message>
        <source>Random turn card</source>
        <translation>Zufällige Turn-Karte</translation>
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
        <translation>Eine Zahl von %1 bis %2 eingeben (Nachkommastellen: höchstens %3).</translation>
    </message>
    <message>
        <source>Enter a whole number from %1 to %2.</source>
        <translation>Eine ganze Zahl von %1 bis %2 eingeben.</translation>
    </message>
</context>
<context>
    <name>PlayActionButton</name>
    <message>
        <source>Key %1</source>
        <translation>Taste %1</translation>
    </message>
</context>
<context>
    <name>PlayPanel</name>
    <message>
        <source>Play vs. Solution</source>
        <translation>Gegen die Lösung</translation>
    </message>
    <message>
        <source>Role: %1</source>
        <translation>Rolle: %1</translation>
    </message>
    <message>
        <source>Choose a role to start</source>
        <translation>Zum Start eine Rolle wählen</translation>
    </message>
    <message>
        <source>No hands can be dealt here. Solve the spot again to play it.</source>
        <translation>Hier lassen sich keine Hände austeilen. Zum Spielen den Spot neu berechnen.</translation>
    </message>
    <message>
        <source>Hand Log</source>
        <translation>Handverlauf</translation>
    </message>
    <message>
        <source>Hand details</source>
        <translation>Details zur Hand</translation>
    </message>
    <message>
        <source>Choose a hand in the log.</source>
        <translation>Eine Hand im Verlauf wählen.</translation>
    </message>
</context>
<context>
    <name>PlayPrompt</name>
    <message>
        <source>%1 loses %2 EV. Best: %3</source>
        <translation>%1 verliert %2 EV. Besser: %3</translation>
    </message>
    <message>
        <source>Perfect</source>
        <translation>Perfekt</translation>
    </message>
    <message>
        <source>Another hand</source>
        <translation>Nächste Hand</translation>
    </message>
</context>
<context>
    <name>PlaySeat</name>
    <message>
        <source>%1: no cards</source>
        <translation>%1: keine Karten</translation>
    </message>
    <message>
        <source>%1: opponent&apos;s cards, face down</source>
        <translation>%1: Karten des Gegners, verdeckt</translation>
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
        <translation>Falsch – besser: %1 (EV -%2)</translation>
    </message>
    <message>
        <source>Correct</source>
        <translation>Richtig</translation>
    </message>
</context>
<context>
    <name>PlayTable</name>
    <message>
        <source>Table</source>
        <translation>Tisch</translation>
    </message>
    <message>
        <source>Dealer button</source>
        <translation>Dealer-Button</translation>
    </message>
    <message>
        <source>Pot: %1</source>
        <translation>Pot: %1</translation>
    </message>
    <message>
        <source>Click Turn/River to change</source>
        <translation>Zum Ändern Turn/River anklicken</translation>
    </message>
    <message>
        <source>OOP action: %1</source>
        <translation>Aktion OOP: %1</translation>
    </message>
</context>
<context>
    <name>PlayingCard</name>
    <message>
        <source>Face-down card</source>
        <translation>Verdeckte Karte</translation>
    </message>
    <message>
        <source>Empty card slot</source>
        <translation>Leerer Kartenplatz</translation>
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
        <translation>Iteration %1 | Exploitability=%2</translation>
    </message>
    <message>
        <source>Ready to solve</source>
        <translation>Bereit zum Berechnen</translation>
    </message>
    <message>
        <source>Finalizing…</source>
        <translation>Wird abgeschlossen&#xa0;…</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Solver converged — finalizing results…</source>
        <translation>Solver konvergiert – Ergebnisse werden fertiggestellt&#xa0;…</translation>
    </message>
    <message>
        <source>Window %1/%2</source>
        <translation>Intervall %1/%2</translation>
    </message>
    <message>
        <source>Iterations: %1</source>
        <translation>Iterationen: %1</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Kennzahlen</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <translation>Verstrichen</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Verbleibend</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>it/s</source>
        <translation>it/s</translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation>Exploitability</translation>
    </message>
    <message>
        <source>Measuring...</source>
        <translation>Messung&#xa0;…</translation>
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
        <translation>Velmora-Projekt (*.velmoraproj)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Projekt speichern</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>unbekannter Fehler</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>ProjectHeader</name>
    <message>
        <source>Project Setup</source>
        <translation>Projekt einrichten</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Setup Required</source>
        <translation>Unvollständig</translation>
    </message>
    <message>
        <source>Solve RAM: %1</source>
        <translation>RAM-Bedarf: %1</translation>
    </message>
    <message>
        <source>Available RAM: %1</source>
        <translation>RAM verfügbar: %1</translation>
    </message>
    <message>
        <source>Continue to Solve →</source>
        <translation>Weiter zur Berechnung →</translation>
    </message>
    <message>
        <source>Solve RAM: being estimated…</source>
        <translation>RAM-Bedarf: wird geschätzt&#xa0;…</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Take back the last change (Ctrl+Z)</source>
        <translation>Letzte Änderung rückgängig machen (Strg+Z)</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Bring back what was undone (Ctrl+Shift+Z)</source>
        <translation>Rückgängig Gemachtes wiederholen (Strg+Umschalt+Z)</translation>
    </message>
</context>
<context>
    <name>QuestionDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>QuickActionsCard</name>
    <message>
        <source>Quick Actions</source>
        <translation>Schnellzugriff</translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation>Neue Berechnung</translation>
    </message>
    <message>
        <source>Configure board, ranges, tree</source>
        <translation>Board, Ranges, Baum wählen</translation>
    </message>
    <message>
        <source>Quick Solve</source>
        <translation>Schnellberechnung</translation>
    </message>
    <message>
        <source>Use default settings</source>
        <translation>Mit Standardeinstellungen</translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation>Range importieren</translation>
    </message>
    <message>
        <source>Load from file</source>
        <translation>Aus Datei laden</translation>
    </message>
</context>
<context>
    <name>RangeCard</name>
    <message>
        <source>OOP Range</source>
        <translation>OOP-Range</translation>
    </message>
    <message>
        <source>IP Range</source>
        <translation>IP-Range</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
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
        <translation>Range</translation>
    </message>
    <message>
        <source>%1 hands</source>
        <translation>Hände: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>z.&#xa0;B.&#xa0;AA, KK, AKs, QQ+ oder 50%</translation>
    </message>
</context>
<context>
    <name>RangeLibraries</name>
    <message>
        <source>Standard Ranges</source>
        <translation>Standard-Ranges</translation>
    </message>
    <message>
        <source>Population Ranges</source>
        <translation>Population-Ranges</translation>
    </message>
    <message>
        <source>Custom Ranges</source>
        <translation>Eigene Ranges</translation>
    </message>
    <message>
        <source>Please enter a name.</source>
        <translation>Bitte einen Namen eingeben.</translation>
    </message>
    <message>
        <source>No range content to import.</source>
        <translation>Keine Range zum Importieren.</translation>
    </message>
    <message>
        <source>Import failed.</source>
        <translation>Import fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Export fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>unbekannter Fehler</translation>
    </message>
    <message>
        <source>Failed to load bundled standard presets (resource file missing/empty).</source>
        <translation>Mitgelieferte Standard-Ranges konnten nicht geladen werden (Ressourcendatei fehlt oder ist leer).</translation>
    </message>
    <message>
        <source>Failed to load bundled presets: </source>
        <translation>Mitgelieferte Ranges konnten nicht geladen werden: </translation>
    </message>
</context>
<context>
    <name>RangeTextField</name>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>z.&#xa0;B.&#xa0;AA, KK, AKs, QQ+ oder 50%</translation>
    </message>
</context>
<context>
    <name>RecentRunsCard</name>
    <message>
        <source>Recent Runs</source>
        <translation>Letzte Läufe</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>No runs yet — click Start Solve to record a run here.</source>
        <translation>Noch keine Läufe – mit „Berechnung starten“ erscheint hier der erste.</translation>
    </message>
</context>
<context>
    <name>ResultNotices</name>
    <message>
        <source>The last solve was cancelled. These are the results of the solve before.</source>
        <translation>Die letzte Berechnung wurde abgebrochen. Dies sind die Ergebnisse der vorherigen Berechnung.</translation>
    </message>
    <message>
        <source>The last solve was not started: %1. These are the results of the solve before.</source>
        <translation>Die letzte Berechnung wurde nicht gestartet: %1. Dies sind die Ergebnisse der vorherigen Berechnung.</translation>
    </message>
    <message>
        <source>The last solve failed: %1. These are the results of the solve before.</source>
        <translation>Die letzte Berechnung ist fehlgeschlagen: %1. Dies sind die Ergebnisse der vorherigen Berechnung.</translation>
    </message>
    <message>
        <source>Solving. These are the results of the solve before, until the new ones are there. %1</source>
        <translation>Wird berechnet. Bis die neuen Ergebnisse da sind, sind hier die der vorherigen Berechnung zu sehen. %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Figures of this node are missing: %1</source>
        <translation>Werte dieses Knotens fehlen: %1</translation>
    </message>
    <message>
        <source>The node locks (%1) are not solved yet. At their nodes the grid, the buckets and the hands show a preview; all other figures are those from before.</source>
        <translation>Die Node-Locks (%1) sind noch nicht eingerechnet. An ihren Knoten zeigen Matrix, Handkategorien und Hände eine Vorschau; alle übrigen Werte sind die bisherigen.</translation>
    </message>
    <message>
        <source>The node locks of this result were removed. It still shows the solve with them.</source>
        <translation>Die Node-Locks dieses Ergebnisses wurden entfernt. Es zeigt noch die Berechnung mit ihnen.</translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation>Neu berechnen</translation>
    </message>
    <message>
        <source>The node locks keep the exploitability from falling any further. The solve ended above its target.</source>
        <translation>Die Node-Locks lassen die Exploitability nicht weiter sinken. Die Berechnung endete über ihrem Ziel.</translation>
    </message>
    <message>
        <source>Setup has changed since this solve</source>
        <translation>„Projekt“ wurde seit dieser Berechnung geändert</translation>
    </message>
    <message>
        <source>Solve again</source>
        <translation>Erneut berechnen</translation>
    </message>
    <message>
        <source>Take back the setup of this result</source>
        <translation>Projekt dieses Ergebnisses wiederherstellen</translation>
    </message>
</context>
<context>
    <name>ResultsHeader</name>
    <message>
        <source>Strategy View</source>
        <translation>Strategieansicht</translation>
    </message>
    <message>
        <source>%1 to act</source>
        <translation>%1 am Zug</translation>
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
        <translation>Exploitability</translation>
    </message>
    <message>
        <source>Range view</source>
        <translation>Range-Ansicht</translation>
    </message>
    <message>
        <source>Play vs solution</source>
        <translation>Gegen die Lösung</translation>
    </message>
</context>
<context>
    <name>RoleChoice</name>
    <message>
        <source>Play as OOP</source>
        <translation>Als OOP spielen</translation>
    </message>
    <message>
        <source>Play as both</source>
        <translation>Beide spielen</translation>
    </message>
    <message>
        <source>Play as IP</source>
        <translation>Als IP spielen</translation>
    </message>
</context>
<context>
    <name>RunHistory</name>
    <message>
        <source>Target %1% (≈ %2) • Threads %3</source>
        <translation>Ziel %1% (≈ %2) • Threads %3</translation>
    </message>
    <message>
        <source>At most %1 iterations</source>
        <translation>Iterationen: höchstens %1</translation>
    </message>
    <message>
        <source>%1 iterations</source>
        <translation>Iterationen: %1</translation>
    </message>
</context>
<context>
    <name>RunRow</name>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Abgelehnt</translation>
    </message>
</context>
<context>
    <name>SeatLibrary</name>
    <message>
        <source>Please enter a name.</source>
        <translation>Bitte einen Namen eingeben.</translation>
    </message>
    <message>
        <source>Current range is empty.</source>
        <translation>Die aktuelle Range ist leer.</translation>
    </message>
    <message>
        <source>Please enter a folder name.</source>
        <translation>Bitte einen Ordnernamen eingeben.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Auf Standard setzen</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Einstellungen speichern</translation>
    </message>
</context>
<context>
    <name>SettingsProfilesCard</name>
    <message>
        <source>Load settings</source>
        <translation>Profil laden</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Profil speichern</translation>
    </message>
    <message>
        <source>Please enter a name.</source>
        <translation>Bitte einen Namen eingeben.</translation>
    </message>
    <message>
        <source>Save Settings Profile</source>
        <translation>Einstellungsprofil speichern</translation>
    </message>
    <message>
        <source>Profile name:</source>
        <translation>Profilname:</translation>
    </message>
    <message>
        <source>e.g., 100bb rake-free (fast)</source>
        <translation>z.&#xa0;B.&#xa0;100bb ohne Rake (schnell)</translation>
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
        <translation>Poker-Solver</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Overview &amp; quick actions</source>
        <translation>Überblick &amp; Schnellzugriff</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Board, ranges, tree</source>
        <translation>Board, Ranges, Baum</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Berechnung</translation>
    </message>
    <message>
        <source>Run solver</source>
        <translation>Solver ausführen</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Browse strategies</source>
        <translation>Strategien ansehen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>App anpassen</translation>
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
        <translation>OOP-Sizings</translation>
    </message>
    <message>
        <source>IP Sizing</source>
        <translation>IP-Sizings</translation>
    </message>
    <message>
        <source>Bet sizes (%)</source>
        <translation>Bet-Größen (%)</translation>
    </message>
    <message>
        <source>Raise sizes (%)</source>
        <translation>Raise-Größen (%)</translation>
    </message>
    <message>
        <source>Add All-In</source>
        <translation>Mit All-in</translation>
    </message>
    <message>
        <source>Don&apos;t donk</source>
        <translation>Kein Donk</translation>
    </message>
    <message>
        <source>Add all-in if jam less than</source>
        <translation>All-in, wenn Jam unter</translation>
    </message>
    <message>
        <source>e.g. 30</source>
        <translation>z.&#xa0;B.&#xa0;30</translation>
    </message>
    <message>
        <source>% pot</source>
        <translation>% Pot</translation>
    </message>
</context>
<context>
    <name>SolveActivityCard</name>
    <message>
        <source>Solve Activity</source>
        <translation>Rechenaktivität</translation>
    </message>
    <message>
        <source>Last 52 weeks</source>
        <translation>Letzte 52 Wochen</translation>
    </message>
</context>
<context>
    <name>SolveFollower</name>
    <message>
        <source>Iteration %1 | exploitability=%2</source>
        <translation>Iteration %1 | Exploitability=%2</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Fehler: %1</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Done: node locks keep the exploitability from falling</source>
        <translation>Fertig: Node-Locks lassen die Exploitability nicht weiter sinken</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Building the cards and the tree...</source>
        <translation>Karten und Baum werden aufgebaut&#xa0;…</translation>
    </message>
    <message>
        <source>Preparing the solver...</source>
        <translation>Solver wird vorbereitet&#xa0;…</translation>
    </message>
    <message>
        <source>Starting the solver...</source>
        <translation>Solver wird gestartet&#xa0;…</translation>
    </message>
    <message>
        <source>Computing the results...</source>
        <translation>Ergebnisse werden berechnet&#xa0;…</translation>
    </message>
    <message>
        <source>Collecting the tree...</source>
        <translation>Baum wird zusammengestellt&#xa0;…</translation>
    </message>
</context>
<context>
    <name>SolvePage</name>
    <message>
        <source>Solve</source>
        <translation>Berechnung</translation>
    </message>
    <message>
        <source>Run the CFR solver and monitor progress in real-time.</source>
        <translation>CFR-Solver ausführen und den Fortschritt live verfolgen.</translation>
    </message>
    <message>
        <source>Finalizing</source>
        <translation>Schließt ab</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
</context>
<context>
    <name>StatusChip</name>
    <message>
        <source>Finalizing</source>
        <translation>Schließt ab</translation>
    </message>
    <message>
        <source>Solving</source>
        <translation>Rechnet</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
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
        <translation>Strategie je Hand</translation>
    </message>
    <message>
        <source>Strategy by Hand (preview, not solved yet)</source>
        <translation>Strategie je Hand (Vorschau, noch nicht berechnet)</translation>
    </message>
</context>
<context>
    <name>StrategyViews</name>
    <message>
        <source>Buckets</source>
        <translation>Handkategorien</translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation>Handdetails</translation>
    </message>
</context>
<context>
    <name>SystemCard</name>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Engine</translation>
    </message>
    <message>
        <source>Dunmarrow Core</source>
        <translation>Dunmarrow Core</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Threads</translation>
    </message>
    <message>
        <source>%1 available</source>
        <translation>%1 verfügbar</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>%1 (%2 free)</source>
        <translation>%1 (%2 frei)</translation>
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
        <translation>Start</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Start a new project (or load one) from Home to enable Project</source>
        <translation>Unter „Start“ ein Projekt anlegen (oder laden), um „Projekt“ freizuschalten</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Berechnung</translation>
    </message>
    <message>
        <source>Fill board, ranges, and sizings to enable Solve</source>
        <translation>Board, Ranges und Sizings ausfüllen, um „Berechnung“ freizuschalten</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Run a solve to enable Results</source>
        <translation>Erst berechnen, um „Ergebnisse“ freizuschalten</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>%1. Still missing: %2.</source>
        <translation>%1. Es fehlt noch: %2.</translation>
    </message>
</context>
<context>
    <name>TrainerStatsCard</name>
    <message>
        <source>Play vs. Solution</source>
        <translation>Gegen die Lösung</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Clear Play vs. Solution Stats</source>
        <translation>Statistik „Gegen die Lösung“ löschen</translation>
    </message>
    <message>
        <source>Hands (Today / Total)</source>
        <translation>Hände (heute / gesamt)</translation>
    </message>
    <message>
        <source>Accuracy (Today / Total)</source>
        <translation>Trefferquote (heute/ges.)</translation>
    </message>
    <message>
        <source>Avg EV Loss (Today / Total)</source>
        <translation>Ø Verlust (heute / ges.)</translation>
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
        <translation>Mögliche Aktionen</translation>
    </message>
    <message>
        <source>%1 options</source>
        <translation>Optionen: %1</translation>
    </message>
    <message>
        <source>Deal %1</source>
        <translation>%1-Karte</translation>
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
        <translation>Endknoten</translation>
    </message>
    <message>
        <source>Deal</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Pot: %1</source>
        <translation>Pot: %1</translation>
    </message>
    <message>
        <source>Freq: %1%</source>
        <translation>Freq.: %1%</translation>
    </message>
    <message>
        <source>EV: %1%2</source>
        <translation>EV: %1%2</translation>
    </message>
    <message>
        <source>Collapse %1</source>
        <translation>%1 einklappen</translation>
    </message>
    <message>
        <source>Expand %1</source>
        <translation>%1 ausklappen</translation>
    </message>
</context>
<context>
    <name>TreeWalk</name>
    <message>
        <source>Root</source>
        <translation>Wurzel</translation>
    </message>
</context>
<context>
    <name>UpdateManager</name>
    <message>
        <source>Update URL is not configured.</source>
        <translation>Es ist keine Update-URL eingerichtet.</translation>
    </message>
    <message>
        <source>Update check failed: %1</source>
        <translation>Update-Prüfung fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Invalid update response (HTTP %1).</source>
        <translation>Ungültige Antwort des Update-Servers (HTTP %1).</translation>
    </message>
    <message>
        <source>No download URL available.</source>
        <translation>Keine Download-URL verfügbar.</translation>
    </message>
</context>
<context>
    <name>UpdatesCard</name>
    <message>
        <source>Last checked: %1</source>
        <translation>Zuletzt geprüft: %1</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Current version: %1</source>
        <translation>Aktuelle Version: %1</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation>Update verfügbar: %1</translation>
    </message>
    <message>
        <source>Checking...</source>
        <translation>Wird geprüft&#xa0;…</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>Download update</source>
        <translation>Update herunterladen</translation>
    </message>
</context>
<context>
    <name>card_names</name>
    <message>
        <source>spades</source>
        <translation>Pik</translation>
    </message>
    <message>
        <source>hearts</source>
        <translation>Herz</translation>
    </message>
    <message>
        <source>diamonds</source>
        <translation>Karo</translation>
    </message>
    <message>
        <source>clubs</source>
        <translation>Kreuz</translation>
    </message>
    <message>
        <source>Ace</source>
        <translation>Ass</translation>
    </message>
    <message>
        <source>King</source>
        <translation>König</translation>
    </message>
    <message>
        <source>Queen</source>
        <translation>Dame</translation>
    </message>
    <message>
        <source>Jack</source>
        <translation>Bube</translation>
    </message>
    <message>
        <source>Ten</source>
        <translation>Zehn</translation>
    </message>
    <message>
        <source>Nine</source>
        <translation>Neun</translation>
    </message>
    <message>
        <source>Eight</source>
        <translation>Acht</translation>
    </message>
    <message>
        <source>Seven</source>
        <translation>Sieben</translation>
    </message>
    <message>
        <source>Six</source>
        <translation>Sechs</translation>
    </message>
    <message>
        <source>Five</source>
        <translation>Fünf</translation>
    </message>
    <message>
        <source>Four</source>
        <translation>Vier</translation>
    </message>
    <message>
        <source>Three</source>
        <translation>Drei</translation>
    </message>
    <message>
        <source>Two</source>
        <translation>Zwei</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2-%1</translation>
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
        <translation>Ohne Rake</translation>
    </message>
    <message>
        <source>50nl rake</source>
        <translation>NL50-Rake</translation>
    </message>
    <message>
        <source>100nl rake</source>
        <translation>NL100-Rake</translation>
    </message>
    <message>
        <source>200nl rake</source>
        <translation>NL200-Rake</translation>
    </message>
    <message>
        <source>500nl rake</source>
        <translation>NL500-Rake</translation>
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
        <translation>3b Cold Call</translation>
    </message>
    <message>
        <source>Bomb pot</source>
        <translation>Bomb pot</translation>
    </message>
    <message>
        <source>Weaker regs</source>
        <translation>Schwächere Regs</translation>
    </message>
    <message>
        <source>Tighter reg</source>
        <translation>Tighterer Reg</translation>
    </message>
    <message>
        <source>Looser reg</source>
        <translation>Looserer Reg</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstige</translation>
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
        <translation>Passiv</translation>
    </message>
    <message>
        <source>Passive tight</source>
        <translation>Passiv-tight</translation>
    </message>
    <message>
        <source>Passive neutral</source>
        <translation>Passiv-neutral</translation>
    </message>
    <message>
        <source>Passive loose</source>
        <translation>Passiv-loose</translation>
    </message>
    <message>
        <source>Extreme loose</source>
        <translation>Extrem loose</translation>
    </message>
    <message>
        <source>Loose aggressive</source>
        <translation>Loose-aggressiv</translation>
    </message>
    <message>
        <source>Standard LAG</source>
        <translation>Standard-LAG</translation>
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
        <translation>Mo</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Di</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Mi</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Fr</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sa</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>So</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>Jan</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>Feb</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>Mär</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Apr</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>Jun</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>Jul</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Aug</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Sep</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Okt</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Nov</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Dez</translation>
    </message>
    <message>
        <source>%1 (future)</source>
        <translation>%1 (künftig)</translation>
    </message>
    <message>
        <source>Solves: %1</source>
        <translation>Berechnungen: %1</translation>
    </message>
    <message>
        <source>Avg iters: %1</source>
        <translation>Ø Iterationen: %1</translation>
    </message>
    <message>
        <source>Avg expl: %1</source>
        <translation>Ø Exploitability: %1</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en_US">
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
        <translation>%1 combo</translation>
    </message>
    <message>
        <source>%1% equity</source>
        <translation>%1% equity</translation>
    </message>
    <message>
        <source>%1 EV</source>
        <translation>%1 EV</translation>
    </message>
</context>
<context>
    <name>ActionFrequencies</name>
    <message>
        <source>Action Frequencies</source>
        <translation>Frequenze delle azioni</translation>
    </message>
</context>
<context>
    <name>ActivityGrid</name>
    <message>
        <source>Solve Activity</source>
        <translation>Attività di calcolo</translation>
    </message>
    <message>
        <source>Last 52 weeks</source>
        <translation>Ultime 52 settimane</translation>
    </message>
</context>
<context>
    <name>AppController</name>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Avvio…</translation>
    </message>
    <message>
        <source>No previous solve config (solve once first)</source>
        <translation>Nessuna configurazione precedente (esegui prima un calcolo)</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Annullamento…</translation>
    </message>
    <message>
        <source>Another file is still being saved or opened</source>
        <translation>Un altro file è ancora in fase di salvataggio o apertura</translation>
    </message>
    <message>
        <source>Loaded project (%1 strategy nodes, %2 combo nodes)</source>
        <translation>Progetto caricato (nodi strategia: %1, nodi combo: %2)</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <translation>Impossibile aprire il file</translation>
    </message>
    <message>
        <source>Unrecognized project format</source>
        <translation>Formato del progetto non riconosciuto</translation>
    </message>
    <message>
        <source>Unsupported project version</source>
        <translation>Versione del progetto non supportata</translation>
    </message>
    <message>
        <source>Invalid JSON</source>
        <translation>JSON non valido</translation>
    </message>
    <message>
        <source>Failed to save file: %1</source>
        <translation>Impossibile salvare il file: %1</translation>
    </message>
    <message>
        <source>Failed to open file: %1</source>
        <translation>Impossibile aprire il file: %1</translation>
    </message>
    <message>
        <source>Estimating the memory...</source>
        <translation>Stima della memoria…</translation>
    </message>
    <message>
        <source>Not started: the solve needs the memory of the result on view</source>
        <translation>Non avviato: al calcolo serve la memoria del risultato visualizzato</translation>
    </message>
    <message>
        <source>Not enough RAM to solve: %1 needed, %2 available</source>
        <translation>RAM insufficiente per il calcolo: necessari %1, disponibili %2</translation>
    </message>
    <message>
        <source>Waiting for the cancelled solve to stop...</source>
        <translation>In attesa che il calcolo annullato si fermi…</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annullato</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>There is not enough memory for the answers of this node</source>
        <translation>Memoria insufficiente per le risposte di questo nodo</translation>
    </message>
    <message>
        <source>The board of the project is impossible: %1</source>
        <translation>Il board del progetto è impossibile: %1</translation>
    </message>
    <message>
        <source>Invalid JSON at byte %1, in %2</source>
        <translation>JSON non valido al byte %1, in %2</translation>
    </message>
    <message>
        <source>Not ready: enter a valid board first</source>
        <translation>Non pronto: inserisci prima un board valido</translation>
    </message>
    <message>
        <source>Not ready: select at least one hand in both ranges</source>
        <translation>Non pronto: seleziona almeno una mano in entrambi i range</translation>
    </message>
    <message>
        <source>Not ready: fill out both OOP and IP sizing</source>
        <translation>Non pronto: compila le size di OOP e di IP</translation>
    </message>
    <message>
        <source>Solve failed: %1</source>
        <translation>Calcolo non riuscito: %1</translation>
    </message>
    <message>
        <source>Board %1 | iters %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5</source>
        <translation>Board %1 | iter. %2 | expl.≈%3 | EV(oop)=%4 EV(ip)=%5</translation>
    </message>
    <message>
        <source>Invalid/non-local file URL</source>
        <translation>URL del file non valido o non locale</translation>
    </message>
    <message>
        <source>Empty file path</source>
        <translation>Percorso del file vuoto</translation>
    </message>
</context>
<context>
    <name>AppShell</name>
    <message>
        <source>Start a new project (or load one) from Home to enable Project</source>
        <translation>Crea o carica un progetto da “Home” per attivare “Progetto”</translation>
    </message>
    <message>
        <source>The memory that this solve takes could not be estimated.</source>
        <translation>Impossibile stimare la memoria richiesta da questo calcolo.</translation>
    </message>
    <message>
        <source>Not enough memory: this solve takes %1, and %2 is available.</source>
        <translation>Memoria insufficiente: questo calcolo richiede %1, ma sono disponibili %2.</translation>
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
        <translation>Nuovo spot</translation>
    </message>
    <message>
        <source>Node locks</source>
        <translation>Node-lock</translation>
    </message>
    <message>
        <source>Node locks (%1) are set on the tree of this spot. Apply them in this solve?</source>
        <translation>Sull’albero di questo spot sono impostati dei node-lock (%1). Applicarli in questo calcolo?</translation>
    </message>
    <message>
        <source>Solve without locks</source>
        <translation>Calcola senza node-lock</translation>
    </message>
    <message>
        <source>Apply the locks</source>
        <translation>Applica i node-lock</translation>
    </message>
    <message>
        <source>A solve is running, and it will be cancelled.</source>
        <translation>È in corso un calcolo, che verrà annullato.</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Modifiche non salvate</translation>
    </message>
    <message>
        <source>The spot or its results are not saved.</source>
        <translation>Lo spot o i suoi risultati non sono stati salvati.</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Non salvare</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Cancel the solve</source>
        <translation>Annulla il calcolo</translation>
    </message>
    <message>
        <source>Take back your spot?</source>
        <translation>Recuperare lo spot?</translation>
    </message>
    <message>
        <source>Dunmarrow did not close properly. The spot that you were editing was kept on %1.</source>
        <translation>Dunmarrow non si è chiuso correttamente. Lo spot che stavi modificando è stato conservato (%1).</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Scarta</translation>
    </message>
    <message>
        <source>Take it back</source>
        <translation>Recupera</translation>
    </message>
    <message>
        <source>Not enough memory for both</source>
        <translation>Memoria insufficiente per entrambi</translation>
    </message>
    <message>
        <source>This solve needs %1, and %2 are available. It can start if the solver of the result on view is dropped: of that result only what was looked at so far stays.</source>
        <translation>Questo calcolo richiede %1, ma sono disponibili %2. Può partire se si scarta il solver del risultato visualizzato: di quel risultato resterà solo ciò che è già stato consultato.</translation>
    </message>
    <message>
        <source>Save first</source>
        <translation>Prima salva</translation>
    </message>
    <message>
        <source>Solve without saving</source>
        <translation>Calcola senza salvare</translation>
    </message>
    <message>
        <source>%1 pot %2</source>
        <translation>%1 piatto %2</translation>
    </message>
    <message>
        <source>Saved %1 at %2</source>
        <translation>%1 salvato alle %2</translation>
    </message>
</context>
<context>
    <name>AppearanceCard</name>
    <message>
        <source>Appearance</source>
        <translation>Aspetto</translation>
    </message>
    <message>
        <source>Dark Mode</source>
        <translation>Modalità scura</translation>
    </message>
    <message>
        <source>Use dark color scheme throughout the interface</source>
        <translation>Usa colori scuri in tutta l’interfaccia</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Change the app language (takes effect immediately)</source>
        <translation>Cambia la lingua dell’app (con effetto immediato)</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Lingua di sistema</translation>
    </message>
    <message>
        <source>Accent Color</source>
        <translation>Colore d’accento</translation>
    </message>
    <message>
        <source>Customize the app highlight color (buttons, accents, clubs/check).</source>
        <translation>Colore di evidenziazione dell’app (pulsanti, accenti, fiori/check).</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blu</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Viola</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Oro</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Arancione</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rosso</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reimposta</translation>
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
        <translation>%1 combo</translation>
    </message>
</context>
<context>
    <name>BucketsCard</name>
    <message>
        <source>Buckets</source>
        <translation>Categorie</translation>
    </message>
    <message>
        <source>%1 shown</source>
        <translation>In vista: %1</translation>
    </message>
</context>
<context>
    <name>BusyLabel</name>
    <message>
        <source>Loading…</source>
        <translation>Caricamento…</translation>
    </message>
</context>
<context>
    <name>CardPicker</name>
    <message>
        <source>Cards</source>
        <translation>Carte</translation>
    </message>
</context>
<context>
    <name>CardPickerDialog</name>
    <message>
        <source>Select card</source>
        <translation>Scegli una carta</translation>
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
        <translation>Togli la carta</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>CardPickerTile</name>
    <message>
        <source>Already used</source>
        <translation>Già usata</translation>
    </message>
</context>
<context>
    <name>ChancePicker</name>
    <message>
        <source>Choose River Card</source>
        <translation>Scegli la carta del river</translation>
    </message>
    <message>
        <source>Choose Turn Card</source>
        <translation>Scegli la carta del turn</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Casuale</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>%1 can&apos;t be dealt here.</source>
        <translation>Qui non si può distribuire %1.</translation>
    </message>
    <message>
        <source>Arrow keys and Return choose a card, or type it: 7c.</source>
        <translation>Scegli una carta con le frecce e Invio o digitala: 7c.</translation>
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
        <translation>Cancella le statistiche contro il solver</translation>
    </message>
    <message>
        <source>Clear all Play vs. Solution statistics (today + total)?</source>
        <translation>Cancellare tutte le statistiche delle partite contro il solver (oggi + totale)?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
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
        <translation>Risorse</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Thread</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Precisione</translation>
    </message>
    <message>
        <source>The solver computes in Float32, whatever is chosen here.</source>
        <translation>Il solver calcola in Float32, qualunque sia la scelta.</translation>
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
        <translation>OOP: niente donk al %1</translation>
    </message>
    <message>
        <source>OOP: add all-in on %1</source>
        <translation>OOP: aggiungi all-in al %1</translation>
    </message>
    <message>
        <source>IP: add all-in on %1</source>
        <translation>IP: aggiungi all-in al %1</translation>
    </message>
    <message>
        <source>OOP: add all-in if jam &lt; %1% pot</source>
        <translation>OOP: aggiungi all-in se &lt; %1% del piatto</translation>
    </message>
    <message>
        <source>IP: add all-in if jam &lt; %1% pot</source>
        <translation>IP: aggiungi all-in se &lt; %1% del piatto</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configurazione</translation>
    </message>
    <message>
        <source>Street</source>
        <translation>Street</translation>
    </message>
    <message>
        <source>Pot / Stack</source>
        <translation>Piatto / stack</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Obiettivo</translation>
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
        <translation>%1% (cap %2)</translation>
    </message>
    <message>
        <source>Bet sizes</source>
        <translation>Size dei bet</translation>
    </message>
    <message>
        <source>F %1/%2 • T %3/%4 • R %5/%6</source>
        <translation>F %1/%2 • T %3/%4 • R %5/%6</translation>
    </message>
    <message>
        <source>Options enabled</source>
        <translation>Opzioni attive</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuna</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Controlli</translation>
    </message>
    <message>
        <source>Solving...</source>
        <translation>Calcolo in corso…</translation>
    </message>
    <message>
        <source>Start Solve</source>
        <translation>Avvia il calcolo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>View Results →</source>
        <translation>Vedi i risultati →</translation>
    </message>
</context>
<context>
    <name>CustomActions</name>
    <message>
        <source>Are you sure you want to delete this folder?</source>
        <translation>Eliminare questa cartella?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this range?</source>
        <translation>Eliminare questo range?</translation>
    </message>
    <message>
        <source>This will also delete %1 range(s). This cannot be undone.</source>
        <translation>Range che verranno eliminati con la cartella: %1. L’operazione è irreversibile.</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>L’operazione è irreversibile.</translation>
    </message>
    <message>
        <source>Save current range…</source>
        <translation>Salva il range attuale…</translation>
    </message>
    <message>
        <source>Import range…</source>
        <translation>Importa range…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Aggiungi cartella…</translation>
    </message>
    <message>
        <source>Delete selected…</source>
        <translation>Elimina selezione…</translation>
    </message>
    <message>
        <source>Save OOP range</source>
        <translation>Salva il range OOP</translation>
    </message>
    <message>
        <source>Save IP range</source>
        <translation>Salva il range IP</translation>
    </message>
    <message>
        <source>Name this range:</source>
        <translation>Nome del range:</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB (default)</source>
        <translation>es. BTN vs BB (predefinito)</translation>
    </message>
    <message>
        <source>Add folder (OOP)</source>
        <translation>Aggiungi cartella (OOP)</translation>
    </message>
    <message>
        <source>Add folder (IP)</source>
        <translation>Aggiungi cartella (IP)</translation>
    </message>
    <message>
        <source>Folder name:</source>
        <translation>Nome della cartella:</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB</source>
        <translation>es. BTN vs BB</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Delete range</source>
        <translation>Elimina</translation>
    </message>
</context>
<context>
    <name>DeleteDialog</name>
    <message>
        <source>This cannot be undone.</source>
        <translation>L’operazione è irreversibile.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>DeveloperActions</name>
    <message>
        <source>Override</source>
        <translation>Sostituisci</translation>
    </message>
    <message>
        <source>Export standard…</source>
        <translation>Esporta standard…</translation>
    </message>
    <message>
        <source>Export population…</source>
        <translation>Esporta popolazione…</translation>
    </message>
    <message>
        <source>Clear overrides…</source>
        <translation>Rimuovi sostituzioni…</translation>
    </message>
    <message>
        <source>Export Standard Ranges</source>
        <translation>Esporta range standard</translation>
    </message>
    <message>
        <source>Export Population Ranges</source>
        <translation>Esporta range popolazione</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>Clear standard overrides</source>
        <translation>Rimuovi sostituzioni: standard</translation>
    </message>
    <message>
        <source>Clear population overrides</source>
        <translation>Rimuovi sostituzioni: popolazione</translation>
    </message>
    <message>
        <source>Clear all locally overridden standard ranges for %1?</source>
        <translation>Rimuovere tutte le sostituzioni locali dei range standard per %1?</translation>
    </message>
    <message>
        <source>Clear all locally overridden population ranges for %1?</source>
        <translation>Rimuovere tutte le sostituzioni locali dei range di popolazione per %1?</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Rimuovi</translation>
    </message>
</context>
<context>
    <name>DrillBar</name>
    <message>
        <source>Stop drill</source>
        <translation>Termina drill</translation>
    </message>
    <message>
        <source>Drill spot</source>
        <translation>Drill sullo spot</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>Documents</source>
        <translation>Documenti</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Scrivania</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Scaricati</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>There is no folder “%1”.</source>
        <translation>La cartella “%1” non esiste.</translation>
    </message>
    <message>
        <source>There is no file “%1” here.</source>
        <translation>Qui non c’è nessun file “%1”.</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Su</translation>
    </message>
    <message>
        <source>Nothing to choose here.</source>
        <translation>Niente da scegliere qui.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome file</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo di file</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Replace file?</source>
        <translation>Sostituire il file?</translation>
    </message>
    <message>
        <source>“%1” is there already. Saving replaces what it holds.</source>
        <translation>“%1” esiste già. Salvando se ne sostituisce il contenuto.</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>Mantieni</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Sostituisci</translation>
    </message>
</context>
<context>
    <name>FileList</name>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Folder %1</source>
        <translation>Cartella %1</translation>
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
        <translation>Parametri di gioco</translation>
    </message>
    <message>
        <source>Starting Pot</source>
        <translation>Piatto iniziale</translation>
    </message>
    <message>
        <source>e.g., 100</source>
        <translation>es. 100</translation>
    </message>
    <message>
        <source>Effective Stack</source>
        <translation>Stack effettivo</translation>
    </message>
    <message>
        <source>Rake (%)</source>
        <translation>Rake (%)</translation>
    </message>
    <message>
        <source>e.g., 5.0</source>
        <translation>es. 5.0</translation>
    </message>
    <message>
        <source>Rake Cap</source>
        <translation>Cap del rake</translation>
    </message>
    <message>
        <source>e.g., 0</source>
        <translation>es. 0</translation>
    </message>
    <message>
        <source>Target Exploitability (%)</source>
        <translation>Obiettivo (% piatto)</translation>
    </message>
    <message>
        <source>e.g., 0.10</source>
        <translation>es. 0.10</translation>
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
        <translation>Albero di gioco</translation>
    </message>
</context>
<context>
    <name>HandBuckets</name>
    <message>
        <source>air</source>
        <translation>aria</translation>
    </message>
    <message>
        <source>back door flush draw</source>
        <translation>backdoor flush draw</translation>
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
        <translation>colore</translation>
    </message>
    <message>
        <source>flush draw</source>
        <translation>flush draw</translation>
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
        <translation>FD mancato</translation>
    </message>
    <message>
        <source>missed OESD</source>
        <translation>OESD mancato</translation>
    </message>
    <message>
        <source>missed gutter</source>
        <translation>gutshot mancato</translation>
    </message>
    <message>
        <source>open ended straight draw</source>
        <translation>draw bilaterale</translation>
    </message>
    <message>
        <source>overpair</source>
        <translation>overpair</translation>
    </message>
    <message>
        <source>quads</source>
        <translation>poker</translation>
    </message>
    <message>
        <source>set</source>
        <translation>set</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>scala</translation>
    </message>
    <message>
        <source>straight flush</source>
        <translation>scala colore</translation>
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
        <translation>doppia coppia</translation>
    </message>
</context>
<context>
    <name>HandDetails</name>
    <message>
        <source>Hand details</source>
        <translation>Dettagli della mano</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
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
        <translation>Mani</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
</context>
<context>
    <name>HandDetailsCard</name>
    <message>
        <source>Loading hand combos…</source>
        <translation>Caricamento combo…</translation>
    </message>
    <message>
        <source>No hand combos to display for this node.</source>
        <translation>Nessuna combo da mostrare in questo nodo.</translation>
    </message>
    <message>
        <source>No combos match the current filters.</source>
        <translation>Nessuna combo corrisponde ai filtri.</translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation>Dettagli mani</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Search (JJ, 56s, JcJd, ...)</source>
        <translation>Cerca (JJ, 56s, JcJd, …)</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtro: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Rimuovi</translation>
    </message>
</context>
<context>
    <name>HandLog</name>
    <message>
        <source>Hand Log</source>
        <translation>Cronologia mani</translation>
    </message>
    <message>
        <source>%1 hands</source>
        <translation>Mani: %1</translation>
    </message>
    <message>
        <source>Hands that you finish are listed here.</source>
        <translation>Qui compaiono le mani concluse.</translation>
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
        <translation>Perfetto</translation>
    </message>
</context>
<context>
    <name>HandMatrix</name>
    <message>
        <source>Hands</source>
        <translation>Mani</translation>
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
        <translation>Vincitore: %1</translation>
    </message>
    <message>
        <source>Won: %1</source>
        <translation>Vincita: %1</translation>
    </message>
    <message>
        <source>Rake: %1</source>
        <translation>Rake: %1</translation>
    </message>
    <message>
        <source>EV lost: %1</source>
        <translation>EV perso: %1</translation>
    </message>
    <message>
        <source>Incorrect: %1</source>
        <translation>Errore: %1</translation>
    </message>
    <message>
        <source>Correct: %1</source>
        <translation>Corretto: %1</translation>
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
        <translation>Un solver hold’em moderno e ad alte prestazioni</translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation>Nuovo calcolo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Apri file</translation>
    </message>
</context>
<context>
    <name>ImportRange</name>
    <message>
        <source>Import failed: %1</source>
        <translation>Importazione non riuscita: %1</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>errore sconosciuto</translation>
    </message>
    <message>
        <source>Import failed: file contained no recognizable hands.</source>
        <translation>Importazione non riuscita: nessuna mano riconoscibile nel file.</translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation>Importa range</translation>
    </message>
    <message>
        <source>Range text (*.txt)</source>
        <translation>Testo del range (*.txt)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>Name this range:</source>
        <translation>Nome del range:</translation>
    </message>
    <message>
        <source>e.g., BTN open (custom)</source>
        <translation>es. BTN open (personale)</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importa</translation>
    </message>
</context>
<context>
    <name>LibraryColumn</name>
    <message>
        <source>No ranges yet.</source>
        <translation>Ancora nessun range.</translation>
    </message>
</context>
<context>
    <name>LibraryRow</name>
    <message>
        <source>Open folder</source>
        <translation>Cartella aperta</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
</context>
<context>
    <name>LicensesCard</name>
    <message>
        <source>Licenses</source>
        <translation>Licenze</translation>
    </message>
    <message>
        <source>Qt Framework</source>
        <translation>Qt Framework</translation>
    </message>
    <message>
        <source>Runtime (dynamic linking)</source>
        <translation>Runtime (linking dinamico)</translation>
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
        <translation>Le note sul software di terze parti e i testi delle licenze si trovano nella cartella “licenses” accanto all’eseguibile.</translation>
    </message>
    <message>
        <source>Open licenses folder</source>
        <translation>Apri la cartella delle licenze</translation>
    </message>
    <message>
        <source>Open notices</source>
        <translation>Apri le note</translation>
    </message>
</context>
<context>
    <name>LoadProfileDialog</name>
    <message>
        <source>Please select a profile.</source>
        <translation>Scegli un profilo.</translation>
    </message>
    <message>
        <source>Load Settings Profile</source>
        <translation>Carica profilo impostazioni</translation>
    </message>
    <message>
        <source>Choose a saved profile:</source>
        <translation>Scegli un profilo salvato:</translation>
    </message>
    <message>
        <source>No saved profiles yet.</source>
        <translation>Ancora nessun profilo salvato.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Carica</translation>
    </message>
    <message>
        <source>Delete settings profile</source>
        <translation>Elimina profilo impostazioni</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this saved profile?</source>
        <translation>Eliminare questo profilo salvato?</translation>
    </message>
</context>
<context>
    <name>LockModeButtons</name>
    <message>
        <source>Standard mode</source>
        <translation>Modalità standard</translation>
    </message>
    <message>
        <source>Node-lock mode</source>
        <translation>Modalità node-lock</translation>
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
        <translation>Salva</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>NodeBox</name>
    <message>
        <source>Pot</source>
        <translation>Piatto</translation>
    </message>
    <message>
        <source>Stack (%1)</source>
        <translation>Stack (%1)</translation>
    </message>
    <message>
        <source>To call</source>
        <translation>Per il call</translation>
    </message>
</context>
<context>
    <name>NodeLockPanel</name>
    <message>
        <source>Node-Locking</source>
        <translation>Node-lock</translation>
    </message>
    <message>
        <source>Node-locking is only available on decision nodes.</source>
        <translation>Il node-lock è disponibile solo nei nodi decisionali.</translation>
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
        <translation>Reimposta pesi</translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation>Ricalcola</translation>
    </message>
    <message>
        <source>Tip: select an action above, then click a hand cell in the matrix to lock it.</source>
        <translation>Suggerimento: scegli un’azione qui sopra, poi clicca su una mano nella matrice per bloccarla.</translation>
    </message>
    <message>
        <source>Undo reset</source>
        <translation>Annulla reset</translation>
    </message>
</context>
<context>
    <name>NodeLocks</name>
    <message>
        <source>The weight must be a number from 0 to 1</source>
        <translation>Il peso deve essere un numero da 0 a 1</translation>
    </message>
</context>
<context>
    <name>NodeView</name>
    <message>
        <source>Random river card</source>
        <translation>Carta river casuale</translation>
    </message>
    <message>
        <source>Random turn card</source>
        <translation>Carta turn casuale</translation>
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
        <translation>Inserisci un numero da %1 a %2 (decimali: al massimo %3).</translation>
    </message>
    <message>
        <source>Enter a whole number from %1 to %2.</source>
        <translation>Inserisci un numero intero da %1 a %2.</translation>
    </message>
</context>
<context>
    <name>PlayActionButton</name>
    <message>
        <source>Key %1</source>
        <translation>Tasto %1</translation>
    </message>
</context>
<context>
    <name>PlayPanel</name>
    <message>
        <source>Play vs. Solution</source>
        <translation>Contro il solver</translation>
    </message>
    <message>
        <source>Role: %1</source>
        <translation>Ruolo: %1</translation>
    </message>
    <message>
        <source>Choose a role to start</source>
        <translation>Scegli un ruolo per iniziare</translation>
    </message>
    <message>
        <source>No hands can be dealt here. Solve the spot again to play it.</source>
        <translation>Qui non si possono distribuire mani. Ricalcola lo spot per giocarlo.</translation>
    </message>
    <message>
        <source>Hand Log</source>
        <translation>Cronologia mani</translation>
    </message>
    <message>
        <source>Hand details</source>
        <translation>Dettagli della mano</translation>
    </message>
    <message>
        <source>Choose a hand in the log.</source>
        <translation>Scegli una mano nella cronologia.</translation>
    </message>
</context>
<context>
    <name>PlayPrompt</name>
    <message>
        <source>%1 loses %2 EV. Best: %3</source>
        <translation>%1 perde %2 EV. Migliore: %3</translation>
    </message>
    <message>
        <source>Perfect</source>
        <translation>Perfetto</translation>
    </message>
    <message>
        <source>Another hand</source>
        <translation>Un’altra mano</translation>
    </message>
</context>
<context>
    <name>PlaySeat</name>
    <message>
        <source>%1: no cards</source>
        <translation>%1: nessuna carta</translation>
    </message>
    <message>
        <source>%1: opponent&apos;s cards, face down</source>
        <translation>%1: carte dell’avversario, coperte</translation>
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
        <translation>Errore — migliore: %1 (EV -%2)</translation>
    </message>
    <message>
        <source>Correct</source>
        <translation>Corretto</translation>
    </message>
</context>
<context>
    <name>PlayTable</name>
    <message>
        <source>Table</source>
        <translation>Tavolo</translation>
    </message>
    <message>
        <source>Dealer button</source>
        <translation>Bottone del dealer</translation>
    </message>
    <message>
        <source>Pot: %1</source>
        <translation>Piatto: %1</translation>
    </message>
    <message>
        <source>Click Turn/River to change</source>
        <translation>Clicca su turn/river per cambiare</translation>
    </message>
    <message>
        <source>OOP action: %1</source>
        <translation>Azione OOP: %1</translation>
    </message>
</context>
<context>
    <name>PlayingCard</name>
    <message>
        <source>Face-down card</source>
        <translation>Carta coperta</translation>
    </message>
    <message>
        <source>Empty card slot</source>
        <translation>Spazio carta vuoto</translation>
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
        <translation>Iterazione %1 | sfruttabilità: %2</translation>
    </message>
    <message>
        <source>Ready to solve</source>
        <translation>Pronto per il calcolo</translation>
    </message>
    <message>
        <source>Finalizing…</source>
        <translation>Finalizzazione…</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Solver converged — finalizing results…</source>
        <translation>Il solver è arrivato a convergenza — finalizzazione dei risultati…</translation>
    </message>
    <message>
        <source>Window %1/%2</source>
        <translation>Finestra %1/%2</translation>
    </message>
    <message>
        <source>Iterations: %1</source>
        <translation>Iterazioni: %1</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Metriche</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <translation>Trascorso</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Rimanente</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>it/s</source>
        <translation>it/s</translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation>Sfruttabilità</translation>
    </message>
    <message>
        <source>Measuring...</source>
        <translation>Misurazione…</translation>
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
        <translation>Progetto Velmora (*.velmoraproj)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Salva progetto</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Apri progetto</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>errore sconosciuto</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
</context>
<context>
    <name>ProjectHeader</name>
    <message>
        <source>Project Setup</source>
        <translation>Configurazione progetto</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Setup Required</source>
        <translation>Da configurare</translation>
    </message>
    <message>
        <source>Solve RAM: %1</source>
        <translation>RAM per il calcolo: %1</translation>
    </message>
    <message>
        <source>Available RAM: %1</source>
        <translation>RAM disponibile: %1</translation>
    </message>
    <message>
        <source>Continue to Solve →</source>
        <translation>Vai al calcolo →</translation>
    </message>
    <message>
        <source>Solve RAM: being estimated…</source>
        <translation>RAM per il calcolo: stima…</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Take back the last change (Ctrl+Z)</source>
        <translation>Annulla l’ultima modifica (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Bring back what was undone (Ctrl+Shift+Z)</source>
        <translation>Ripristina ciò che è stato annullato (Ctrl+Maiusc+Z)</translation>
    </message>
</context>
<context>
    <name>QuestionDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>QuickActionsCard</name>
    <message>
        <source>Quick Actions</source>
        <translation>Azioni rapide</translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation>Nuovo calcolo</translation>
    </message>
    <message>
        <source>Configure board, ranges, tree</source>
        <translation>Configura board, range, albero</translation>
    </message>
    <message>
        <source>Quick Solve</source>
        <translation>Calcolo rapido</translation>
    </message>
    <message>
        <source>Use default settings</source>
        <translation>Con impostazioni predefinite</translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation>Importa range</translation>
    </message>
    <message>
        <source>Load from file</source>
        <translation>Carica da file</translation>
    </message>
</context>
<context>
    <name>RangeCard</name>
    <message>
        <source>OOP Range</source>
        <translation>Range OOP</translation>
    </message>
    <message>
        <source>IP Range</source>
        <translation>Range IP</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
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
        <translation>%1 combo (%2%)</translation>
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
        <translation>Mani: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>es. AA, KK, AKs, QQ+ o 50%</translation>
    </message>
</context>
<context>
    <name>RangeLibraries</name>
    <message>
        <source>Standard Ranges</source>
        <translation>Range standard</translation>
    </message>
    <message>
        <source>Population Ranges</source>
        <translation>Range di popolazione</translation>
    </message>
    <message>
        <source>Custom Ranges</source>
        <translation>Range personali</translation>
    </message>
    <message>
        <source>Please enter a name.</source>
        <translation>Inserisci un nome.</translation>
    </message>
    <message>
        <source>No range content to import.</source>
        <translation>Nessun range da importare.</translation>
    </message>
    <message>
        <source>Import failed.</source>
        <translation>Importazione non riuscita.</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Esportazione non riuscita: %1</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>errore sconosciuto</translation>
    </message>
    <message>
        <source>Failed to load bundled standard presets (resource file missing/empty).</source>
        <translation>Impossibile caricare i range standard inclusi (file di risorse mancante o vuoto).</translation>
    </message>
    <message>
        <source>Failed to load bundled presets: </source>
        <translation>Impossibile caricare i range inclusi: </translation>
    </message>
</context>
<context>
    <name>RangeTextField</name>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>es. AA, KK, AKs, QQ+ o 50%</translation>
    </message>
</context>
<context>
    <name>RecentRunsCard</name>
    <message>
        <source>Recent Runs</source>
        <translation>Calcoli recenti</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>No runs yet — click Start Solve to record a run here.</source>
        <translation>Ancora nessun calcolo: clicca su “Avvia il calcolo” per vederlo qui.</translation>
    </message>
</context>
<context>
    <name>ResultNotices</name>
    <message>
        <source>The last solve was cancelled. These are the results of the solve before.</source>
        <translation>L’ultimo calcolo è stato annullato. Questi sono i risultati del calcolo precedente.</translation>
    </message>
    <message>
        <source>The last solve was not started: %1. These are the results of the solve before.</source>
        <translation>L’ultimo calcolo non è stato avviato: %1. Questi sono i risultati del calcolo precedente.</translation>
    </message>
    <message>
        <source>The last solve failed: %1. These are the results of the solve before.</source>
        <translation>L’ultimo calcolo non è riuscito: %1. Questi sono i risultati del calcolo precedente.</translation>
    </message>
    <message>
        <source>Solving. These are the results of the solve before, until the new ones are there. %1</source>
        <translation>Calcolo in corso. Finché non ci sono i nuovi risultati, restano visibili quelli del calcolo precedente. %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Figures of this node are missing: %1</source>
        <translation>Mancano dei valori di questo nodo: %1</translation>
    </message>
    <message>
        <source>The node locks (%1) are not solved yet. At their nodes the grid, the buckets and the hands show a preview; all other figures are those from before.</source>
        <translation>I node-lock (%1) non sono ancora stati calcolati. Nei loro nodi la matrice, le categorie e le mani mostrano un’anteprima; tutti gli altri valori sono quelli di prima.</translation>
    </message>
    <message>
        <source>The node locks of this result were removed. It still shows the solve with them.</source>
        <translation>I node-lock di questo risultato sono stati rimossi. Mostra ancora il calcolo fatto con essi.</translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation>Ricalcola</translation>
    </message>
    <message>
        <source>The node locks keep the exploitability from falling any further. The solve ended above its target.</source>
        <translation>I node-lock impediscono alla sfruttabilità di scendere ancora. Il calcolo si è chiuso sopra l’obiettivo.</translation>
    </message>
    <message>
        <source>Setup has changed since this solve</source>
        <translation>“Progetto” è cambiato dopo questo calcolo</translation>
    </message>
    <message>
        <source>Solve again</source>
        <translation>Calcola di nuovo</translation>
    </message>
    <message>
        <source>Take back the setup of this result</source>
        <translation>Ripristina il progetto di questo risultato</translation>
    </message>
</context>
<context>
    <name>ResultsHeader</name>
    <message>
        <source>Strategy View</source>
        <translation>Strategia</translation>
    </message>
    <message>
        <source>%1 to act</source>
        <translation>Tocca a %1</translation>
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
        <translation>Sfruttabilità</translation>
    </message>
    <message>
        <source>Range view</source>
        <translation>Vista range</translation>
    </message>
    <message>
        <source>Play vs solution</source>
        <translation>Contro il solver</translation>
    </message>
</context>
<context>
    <name>RoleChoice</name>
    <message>
        <source>Play as OOP</source>
        <translation>Gioca come OOP</translation>
    </message>
    <message>
        <source>Play as both</source>
        <translation>Gioca con entrambi</translation>
    </message>
    <message>
        <source>Play as IP</source>
        <translation>Gioca come IP</translation>
    </message>
</context>
<context>
    <name>RunHistory</name>
    <message>
        <source>Target %1% (≈ %2) • Threads %3</source>
        <translation>Obiettivo: %1% (≈ %2) • Thread: %3</translation>
    </message>
    <message>
        <source>At most %1 iterations</source>
        <translation>Iterazioni: al massimo %1</translation>
    </message>
    <message>
        <source>%1 iterations</source>
        <translation>Iterazioni: %1</translation>
    </message>
</context>
<context>
    <name>RunRow</name>
    <message>
        <source>Running</source>
        <translation>In corso</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Completato</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annullato</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riuscito</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Rifiutato</translation>
    </message>
</context>
<context>
    <name>SeatLibrary</name>
    <message>
        <source>Please enter a name.</source>
        <translation>Inserisci un nome.</translation>
    </message>
    <message>
        <source>Current range is empty.</source>
        <translation>Il range attuale è vuoto.</translation>
    </message>
    <message>
        <source>Please enter a folder name.</source>
        <translation>Inserisci un nome per la cartella.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Ripristina predefinite</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Salva impostazioni</translation>
    </message>
</context>
<context>
    <name>SettingsProfilesCard</name>
    <message>
        <source>Load settings</source>
        <translation>Carica profilo</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Salva profilo</translation>
    </message>
    <message>
        <source>Please enter a name.</source>
        <translation>Inserisci un nome.</translation>
    </message>
    <message>
        <source>Save Settings Profile</source>
        <translation>Salva profilo impostazioni</translation>
    </message>
    <message>
        <source>Profile name:</source>
        <translation>Nome del profilo:</translation>
    </message>
    <message>
        <source>e.g., 100bb rake-free (fast)</source>
        <translation>es. 100bb senza rake (veloce)</translation>
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
        <translation>Solver di poker</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Overview &amp; quick actions</source>
        <translation>Panoramica e azioni rapide</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Progetto</translation>
    </message>
    <message>
        <source>Board, ranges, tree</source>
        <translation>Board, range, albero</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Calcolo</translation>
    </message>
    <message>
        <source>Run solver</source>
        <translation>Avvia il solver</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Risultati</translation>
    </message>
    <message>
        <source>Browse strategies</source>
        <translation>Esplora le strategie</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferenze</translation>
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
        <translation>Sizing OOP</translation>
    </message>
    <message>
        <source>IP Sizing</source>
        <translation>Sizing IP</translation>
    </message>
    <message>
        <source>Bet sizes (%)</source>
        <translation>Bet (%)</translation>
    </message>
    <message>
        <source>Raise sizes (%)</source>
        <translation>Raise (%)</translation>
    </message>
    <message>
        <source>Add All-In</source>
        <translation>Con all-in</translation>
    </message>
    <message>
        <source>Don&apos;t donk</source>
        <translation>No donk</translation>
    </message>
    <message>
        <source>Add all-in if jam less than</source>
        <translation>All-in se inferiore al</translation>
    </message>
    <message>
        <source>e.g. 30</source>
        <translation>es. 30</translation>
    </message>
    <message>
        <source>% pot</source>
        <translation>% del piatto</translation>
    </message>
</context>
<context>
    <name>SolveActivityCard</name>
    <message>
        <source>Solve Activity</source>
        <translation>Attività di calcolo</translation>
    </message>
    <message>
        <source>Last 52 weeks</source>
        <translation>Ultime 52 settimane</translation>
    </message>
</context>
<context>
    <name>SolveFollower</name>
    <message>
        <source>Iteration %1 | exploitability=%2</source>
        <translation>Iterazione %1 | sfruttabilità: %2</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Errore: %1</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Completato</translation>
    </message>
    <message>
        <source>Done: node locks keep the exploitability from falling</source>
        <translation>Completato: i node-lock impediscono alla sfruttabilità di scendere</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annullato</translation>
    </message>
    <message>
        <source>Building the cards and the tree...</source>
        <translation>Costruzione di carte e albero…</translation>
    </message>
    <message>
        <source>Preparing the solver...</source>
        <translation>Preparazione del solver…</translation>
    </message>
    <message>
        <source>Starting the solver...</source>
        <translation>Avvio del solver…</translation>
    </message>
    <message>
        <source>Computing the results...</source>
        <translation>Calcolo dei risultati…</translation>
    </message>
    <message>
        <source>Collecting the tree...</source>
        <translation>Raccolta dell’albero…</translation>
    </message>
</context>
<context>
    <name>SolvePage</name>
    <message>
        <source>Solve</source>
        <translation>Calcolo</translation>
    </message>
    <message>
        <source>Run the CFR solver and monitor progress in real-time.</source>
        <translation>Avvia il solver CFR e segui l’avanzamento in tempo reale.</translation>
    </message>
    <message>
        <source>Finalizing</source>
        <translation>Finalizzazione</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>In corso</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
</context>
<context>
    <name>StatusChip</name>
    <message>
        <source>Finalizing</source>
        <translation>Finalizzazione</translation>
    </message>
    <message>
        <source>Solving</source>
        <translation>Calcolo</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
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
        <translation>Strategia per mano</translation>
    </message>
    <message>
        <source>Strategy by Hand (preview, not solved yet)</source>
        <translation>Strategia per mano (anteprima, non ancora calcolata)</translation>
    </message>
</context>
<context>
    <name>StrategyViews</name>
    <message>
        <source>Buckets</source>
        <translation>Categorie</translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation>Dettagli mani</translation>
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
        <translation>Motore</translation>
    </message>
    <message>
        <source>Dunmarrow Core</source>
        <translation>Dunmarrow Core</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Thread</translation>
    </message>
    <message>
        <source>%1 available</source>
        <translation>Disponibili: %1</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>%1 (%2 free)</source>
        <translation>%1 (liberi %2)</translation>
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
        <translation>Home</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Progetto</translation>
    </message>
    <message>
        <source>Start a new project (or load one) from Home to enable Project</source>
        <translation>Crea o carica un progetto da “Home” per attivare “Progetto”</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Calcolo</translation>
    </message>
    <message>
        <source>Fill board, ranges, and sizings to enable Solve</source>
        <translation>Completa board, range e sizing per attivare “Calcolo”</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Risultati</translation>
    </message>
    <message>
        <source>Run a solve to enable Results</source>
        <translation>Esegui un calcolo per attivare “Risultati”</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>%1. Still missing: %2.</source>
        <translation>%1. Manca ancora: %2.</translation>
    </message>
</context>
<context>
    <name>TrainerStatsCard</name>
    <message>
        <source>Play vs. Solution</source>
        <translation>Contro il solver</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Clear Play vs. Solution Stats</source>
        <translation>Cancella le statistiche contro il solver</translation>
    </message>
    <message>
        <source>Hands (Today / Total)</source>
        <translation>Mani (oggi/tot.)</translation>
    </message>
    <message>
        <source>Accuracy (Today / Total)</source>
        <translation>Precisione (oggi/tot.)</translation>
    </message>
    <message>
        <source>Avg EV Loss (Today / Total)</source>
        <translation>EV medio perso (oggi/tot.)</translation>
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
        <translation>Azioni disponibili</translation>
    </message>
    <message>
        <source>%1 options</source>
        <translation>Opzioni: %1</translation>
    </message>
    <message>
        <source>Deal %1</source>
        <translation>Carta: %1</translation>
    </message>
    <message>
        <source>River</source>
        <translation>river</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>turn</translation>
    </message>
</context>
<context>
    <name>TreeNode</name>
    <message>
        <source>Terminal</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Deal</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>Pot: %1</source>
        <translation>Piatto: %1</translation>
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
        <translation>Comprimi %1</translation>
    </message>
    <message>
        <source>Expand %1</source>
        <translation>Espandi %1</translation>
    </message>
</context>
<context>
    <name>TreeWalk</name>
    <message>
        <source>Root</source>
        <translation>Radice</translation>
    </message>
</context>
<context>
    <name>UpdateManager</name>
    <message>
        <source>Update URL is not configured.</source>
        <translation>URL degli aggiornamenti non configurato.</translation>
    </message>
    <message>
        <source>Update check failed: %1</source>
        <translation>Verifica aggiornamenti non riuscita: %1</translation>
    </message>
    <message>
        <source>Invalid update response (HTTP %1).</source>
        <translation>Risposta di aggiornamento non valida (HTTP %1).</translation>
    </message>
    <message>
        <source>No download URL available.</source>
        <translation>Nessun URL di download disponibile.</translation>
    </message>
</context>
<context>
    <name>UpdatesCard</name>
    <message>
        <source>Last checked: %1</source>
        <translation>Ultimo controllo: %1</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aggiornamenti</translation>
    </message>
    <message>
        <source>Current version: %1</source>
        <translation>Versione attuale: %1</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>sconosciuta</translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation>Aggiornamento disponibile: %1</translation>
    </message>
    <message>
        <source>Checking...</source>
        <translation>Controllo…</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Controlla aggiornamenti</translation>
    </message>
    <message>
        <source>Download update</source>
        <translation>Scarica aggiornamento</translation>
    </message>
</context>
<context>
    <name>card_names</name>
    <message>
        <source>spades</source>
        <translation>picche</translation>
    </message>
    <message>
        <source>hearts</source>
        <translation>cuori</translation>
    </message>
    <message>
        <source>diamonds</source>
        <translation>quadri</translation>
    </message>
    <message>
        <source>clubs</source>
        <translation>fiori</translation>
    </message>
    <message>
        <source>Ace</source>
        <translation>Asso</translation>
    </message>
    <message>
        <source>King</source>
        <translation>Re</translation>
    </message>
    <message>
        <source>Queen</source>
        <translation>Donna</translation>
    </message>
    <message>
        <source>Jack</source>
        <translation>Jack</translation>
    </message>
    <message>
        <source>Ten</source>
        <translation>Dieci</translation>
    </message>
    <message>
        <source>Nine</source>
        <translation>Nove</translation>
    </message>
    <message>
        <source>Eight</source>
        <translation>Otto</translation>
    </message>
    <message>
        <source>Seven</source>
        <translation>Sette</translation>
    </message>
    <message>
        <source>Six</source>
        <translation>Sei</translation>
    </message>
    <message>
        <source>Five</source>
        <translation>Cinque</translation>
    </message>
    <message>
        <source>Four</source>
        <translation>Quattro</translation>
    </message>
    <message>
        <source>Three</source>
        <translation>Tre</translation>
    </message>
    <message>
        <source>Two</source>
        <translation>Due</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
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
        <translation>Senza rake</translation>
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
        <translation>3b cold call</translation>
    </message>
    <message>
        <source>Bomb pot</source>
        <translation>Bomb pot</translation>
    </message>
    <message>
        <source>Weaker regs</source>
        <translation>Reg più deboli</translation>
    </message>
    <message>
        <source>Tighter reg</source>
        <translation>Reg più tight</translation>
    </message>
    <message>
        <source>Looser reg</source>
        <translation>Reg più loose</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Altri</translation>
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
        <translation>Passivo</translation>
    </message>
    <message>
        <source>Passive tight</source>
        <translation>Passivo tight</translation>
    </message>
    <message>
        <source>Passive neutral</source>
        <translation>Passivo neutro</translation>
    </message>
    <message>
        <source>Passive loose</source>
        <translation>Passivo loose</translation>
    </message>
    <message>
        <source>Extreme loose</source>
        <translation>Loose estremo</translation>
    </message>
    <message>
        <source>Loose aggressive</source>
        <translation>Loose aggressivo</translation>
    </message>
    <message>
        <source>Standard LAG</source>
        <translation>LAG standard</translation>
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
        <translation>mer</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>gio</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>ven</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>sab</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>dom</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>gen</translation>
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
        <translation>apr</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mag</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>giu</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>lug</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>ago</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>set</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>ott</translation>
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
        <translation>Calcoli: %1</translation>
    </message>
    <message>
        <source>Avg iters: %1</source>
        <translation>Iter. medie: %1</translation>
    </message>
    <message>
        <source>Avg expl: %1</source>
        <translation>Sfrutt. media: %1</translation>
    </message>
</context>
</TS>

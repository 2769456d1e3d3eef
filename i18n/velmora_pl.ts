<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en_US">
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
        <translation>Częstotliwości akcji</translation>
    </message>
</context>
<context>
    <name>ActivityGrid</name>
    <message>
        <source>Solve Activity</source>
        <translation>Aktywność obliczeń</translation>
    </message>
    <message>
        <source>Last 52 weeks</source>
        <translation>Ostatnie 52 tygodnie</translation>
    </message>
</context>
<context>
    <name>AppController</name>
    <message>
        <source>Ready</source>
        <translation>Gotowy</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Uruchamianie…</translation>
    </message>
    <message>
        <source>No previous solve config (solve once first)</source>
        <translation>Brak poprzedniej konfiguracji (najpierw uruchom obliczenia)</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Anulowanie…</translation>
    </message>
    <message>
        <source>Another file is still being saved or opened</source>
        <translation>Trwa jeszcze zapis lub odczyt innego pliku</translation>
    </message>
    <message>
        <source>Loaded project (%1 strategy nodes, %2 combo nodes)</source>
        <translation>Wczytano projekt (węzły strategii: %1, węzły combo: %2)</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <translation>Nie udało się otworzyć pliku</translation>
    </message>
    <message>
        <source>Unrecognized project format</source>
        <translation>Nierozpoznany format projektu</translation>
    </message>
    <message>
        <source>Unsupported project version</source>
        <translation>Nieobsługiwana wersja projektu</translation>
    </message>
    <message>
        <source>Invalid JSON</source>
        <translation>Nieprawidłowy JSON</translation>
    </message>
    <message>
        <source>Failed to save file: %1</source>
        <translation>Nie udało się zapisać pliku: %1</translation>
    </message>
    <message>
        <source>Failed to open file: %1</source>
        <translation>Nie udało się otworzyć pliku: %1</translation>
    </message>
    <message>
        <source>Estimating the memory...</source>
        <translation>Szacowanie pamięci…</translation>
    </message>
    <message>
        <source>Not started: the solve needs the memory of the result on view</source>
        <translation>Nie uruchomiono: obliczenia potrzebują pamięci wyświetlanego wyniku</translation>
    </message>
    <message>
        <source>Not enough RAM to solve: %1 needed, %2 available</source>
        <translation>Za mało RAM na obliczenia: potrzeba %1, dostępne %2</translation>
    </message>
    <message>
        <source>Waiting for the cancelled solve to stop...</source>
        <translation>Oczekiwanie na koniec anulowanych obliczeń…</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Anulowane</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>There is not enough memory for the answers of this node</source>
        <translation>Za mało pamięci na odpowiedzi tego węzła</translation>
    </message>
    <message>
        <source>The board of the project is impossible: %1</source>
        <translation>Board projektu jest niemożliwy: %1</translation>
    </message>
    <message>
        <source>Invalid JSON at byte %1, in %2</source>
        <translation>Nieprawidłowy JSON w bajcie %1, w %2</translation>
    </message>
    <message>
        <source>Not ready: enter a valid board first</source>
        <translation>Nie gotowe: najpierw podaj poprawny board</translation>
    </message>
    <message>
        <source>Not ready: select at least one hand in both ranges</source>
        <translation>Nie gotowe: wybierz co najmniej jedną rękę w obu zakresach</translation>
    </message>
    <message>
        <source>Not ready: fill out both OOP and IP sizing</source>
        <translation>Nie gotowe: uzupełnij rozmiary zakładów OOP i IP</translation>
    </message>
    <message>
        <source>Solve failed: %1</source>
        <translation>Obliczenia nie powiodły się: %1</translation>
    </message>
    <message>
        <source>Board %1 | iters %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5</source>
        <translation>Board %1 | iter. %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5</translation>
    </message>
    <message>
        <source>Invalid/non-local file URL</source>
        <translation>Nieprawidłowy lub nielokalny adres URL pliku</translation>
    </message>
    <message>
        <source>Empty file path</source>
        <translation>Pusta ścieżka pliku</translation>
    </message>
</context>
<context>
    <name>AppShell</name>
    <message>
        <source>Start a new project (or load one) from Home to enable Project</source>
        <translation>Utwórz lub wczytaj projekt na karcie „Start”, aby odblokować „Projekt”</translation>
    </message>
    <message>
        <source>The memory that this solve takes could not be estimated.</source>
        <translation>Nie udało się oszacować pamięci potrzebnej na te obliczenia.</translation>
    </message>
    <message>
        <source>Not enough memory: this solve takes %1, and %2 is available.</source>
        <translation>Za mało pamięci: te obliczenia wymagają %1, a dostępne jest %2.</translation>
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
        <translation>Nowy spot</translation>
    </message>
    <message>
        <source>Node locks</source>
        <translation>Nodelocki</translation>
    </message>
    <message>
        <source>Node locks (%1) are set on the tree of this spot. Apply them in this solve?</source>
        <translation>W drzewie tego spotu ustawiono nodelocki (%1). Zastosować je w tych obliczeniach?</translation>
    </message>
    <message>
        <source>Solve without locks</source>
        <translation>Oblicz bez nodelocków</translation>
    </message>
    <message>
        <source>Apply the locks</source>
        <translation>Zastosuj nodelocki</translation>
    </message>
    <message>
        <source>A solve is running, and it will be cancelled.</source>
        <translation>Trwają obliczenia; zostaną anulowane.</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Niezapisane zmiany</translation>
    </message>
    <message>
        <source>The spot or its results are not saved.</source>
        <translation>Spot lub jego wyniki nie zostały zapisane.</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Nie zapisuj</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Cancel the solve</source>
        <translation>Anuluj obliczenia</translation>
    </message>
    <message>
        <source>Take back your spot?</source>
        <translation>Przywrócić Twój spot?</translation>
    </message>
    <message>
        <source>Dunmarrow did not close properly. The spot that you were editing was kept on %1.</source>
        <translation>Program Dunmarrow nie został poprawnie zamknięty. Edytowany spot został zachowany (%1).</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Odrzuć</translation>
    </message>
    <message>
        <source>Take it back</source>
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>Not enough memory for both</source>
        <translation>Za mało pamięci na jedno i drugie</translation>
    </message>
    <message>
        <source>This solve needs %1, and %2 are available. It can start if the solver of the result on view is dropped: of that result only what was looked at so far stays.</source>
        <translation>Te obliczenia wymagają %1, a dostępne jest %2. Można je uruchomić, jeśli solver wyświetlanego wyniku zostanie usunięty z pamięci: z tego wyniku zostanie tylko to, co już obejrzano.</translation>
    </message>
    <message>
        <source>Save first</source>
        <translation>Najpierw zapisz</translation>
    </message>
    <message>
        <source>Solve without saving</source>
        <translation>Oblicz bez zapisu</translation>
    </message>
    <message>
        <source>%1 pot %2</source>
        <translation>%1 pula %2</translation>
    </message>
    <message>
        <source>Saved %1 at %2</source>
        <translation>Zapisano %1 o %2</translation>
    </message>
</context>
<context>
    <name>AppearanceCard</name>
    <message>
        <source>Appearance</source>
        <translation>Wygląd</translation>
    </message>
    <message>
        <source>Dark Mode</source>
        <translation>Tryb ciemny</translation>
    </message>
    <message>
        <source>Use dark color scheme throughout the interface</source>
        <translation>Ciemne kolory w całym interfejsie</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Change the app language (takes effect immediately)</source>
        <translation>Język programu (zmiana działa od razu)</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Jak w systemie</translation>
    </message>
    <message>
        <source>Accent Color</source>
        <translation>Kolor akcentu</translation>
    </message>
    <message>
        <source>Customize the app highlight color (buttons, accents, clubs/check).</source>
        <translation>Kolor wyróżnień w programie (przyciski, akcenty, trefle/check).</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Zielony</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Niebieski</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Fioletowy</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Złoty</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Pomarańczowy</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Czerwony</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetuj</translation>
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
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>%1 shown</source>
        <translation>Widoczne: %1</translation>
    </message>
</context>
<context>
    <name>BusyLabel</name>
    <message>
        <source>Loading…</source>
        <translation>Wczytywanie…</translation>
    </message>
</context>
<context>
    <name>CardPicker</name>
    <message>
        <source>Cards</source>
        <translation>Karty</translation>
    </message>
</context>
<context>
    <name>CardPickerDialog</name>
    <message>
        <source>Select card</source>
        <translation>Wybierz kartę</translation>
    </message>
    <message>
        <source>River card</source>
        <translation>Karta rivera</translation>
    </message>
    <message>
        <source>Turn card</source>
        <translation>Karta turna</translation>
    </message>
    <message>
        <source>Flop card</source>
        <translation>Karta flopa</translation>
    </message>
    <message>
        <source>Clear card</source>
        <translation>Usuń kartę</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>CardPickerTile</name>
    <message>
        <source>Already used</source>
        <translation>Już użyta</translation>
    </message>
</context>
<context>
    <name>ChancePicker</name>
    <message>
        <source>Choose River Card</source>
        <translation>Wybierz kartę rivera</translation>
    </message>
    <message>
        <source>Choose Turn Card</source>
        <translation>Wybierz kartę turna</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Losowa</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>%1 can&apos;t be dealt here.</source>
        <translation>Nie można tu rozdać %1.</translation>
    </message>
    <message>
        <source>Arrow keys and Return choose a card, or type it: 7c.</source>
        <translation>Wybierz kartę strzałkami i klawiszem Enter lub wpisz ją: 7c.</translation>
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
        <translation>Czyszczenie statystyk gry z solverem</translation>
    </message>
    <message>
        <source>Clear all Play vs. Solution statistics (today + total)?</source>
        <translation>Wyczyścić wszystkie statystyki gry z solverem (dzisiejsze i łączne)?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
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
        <translation>Zasoby</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Wątki</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Maks.</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Precyzja</translation>
    </message>
    <message>
        <source>The solver computes in Float32, whatever is chosen here.</source>
        <translation>Solver liczy w Float32 niezależnie od wyboru.</translation>
    </message>
</context>
<context>
    <name>ConfigurationCard</name>
    <message>
        <source>flop</source>
        <translation>flopie</translation>
    </message>
    <message>
        <source>turn</source>
        <translation>turnie</translation>
    </message>
    <message>
        <source>river</source>
        <translation>riverze</translation>
    </message>
    <message>
        <source>OOP: don&apos;t donk on %1</source>
        <translation>OOP: bez donków na %1</translation>
    </message>
    <message>
        <source>OOP: add all-in on %1</source>
        <translation>OOP: dodaj all-in na %1</translation>
    </message>
    <message>
        <source>IP: add all-in on %1</source>
        <translation>IP: dodaj all-in na %1</translation>
    </message>
    <message>
        <source>OOP: add all-in if jam &lt; %1% pot</source>
        <translation>OOP: dodaj all-in, jeśli &lt; %1% puli</translation>
    </message>
    <message>
        <source>IP: add all-in if jam &lt; %1% pot</source>
        <translation>IP: dodaj all-in, jeśli &lt; %1% puli</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfiguracja</translation>
    </message>
    <message>
        <source>Street</source>
        <translation>Ulica</translation>
    </message>
    <message>
        <source>Pot / Stack</source>
        <translation>Pula / stack</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Cel</translation>
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
        <translation>Sizing betów</translation>
    </message>
    <message>
        <source>F %1/%2 • T %3/%4 • R %5/%6</source>
        <translation>F %1/%2 • T %3/%4 • R %5/%6</translation>
    </message>
    <message>
        <source>Options enabled</source>
        <translation>Włączone opcje</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Sterowanie</translation>
    </message>
    <message>
        <source>Solving...</source>
        <translation>Obliczanie…</translation>
    </message>
    <message>
        <source>Start Solve</source>
        <translation>Uruchom obliczenia</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>View Results →</source>
        <translation>Zobacz wyniki →</translation>
    </message>
</context>
<context>
    <name>CustomActions</name>
    <message>
        <source>Are you sure you want to delete this folder?</source>
        <translation>Czy na pewno usunąć ten folder?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this range?</source>
        <translation>Czy na pewno usunąć ten zakres?</translation>
    </message>
    <message>
        <source>This will also delete %1 range(s). This cannot be undone.</source>
        <translation>Liczba zakresów, które też zostaną usunięte: %1. Tego nie można cofnąć.</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>Tego nie można cofnąć.</translation>
    </message>
    <message>
        <source>Save current range…</source>
        <translation>Zapisz bieżący zakres…</translation>
    </message>
    <message>
        <source>Import range…</source>
        <translation>Importuj zakres…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Dodaj folder…</translation>
    </message>
    <message>
        <source>Delete selected…</source>
        <translation>Usuń zaznaczone…</translation>
    </message>
    <message>
        <source>Save OOP range</source>
        <translation>Zapisz zakres OOP</translation>
    </message>
    <message>
        <source>Save IP range</source>
        <translation>Zapisz zakres IP</translation>
    </message>
    <message>
        <source>Name this range:</source>
        <translation>Nazwa zakresu:</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB (default)</source>
        <translation>np. BTN vs BB (domyślny)</translation>
    </message>
    <message>
        <source>Add folder (OOP)</source>
        <translation>Dodaj folder (OOP)</translation>
    </message>
    <message>
        <source>Add folder (IP)</source>
        <translation>Dodaj folder (IP)</translation>
    </message>
    <message>
        <source>Folder name:</source>
        <translation>Nazwa folderu:</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB</source>
        <translation>np. BTN vs BB</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Delete range</source>
        <translation>Usuwanie</translation>
    </message>
</context>
<context>
    <name>DeleteDialog</name>
    <message>
        <source>This cannot be undone.</source>
        <translation>Tego nie można cofnąć.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>DeveloperActions</name>
    <message>
        <source>Override</source>
        <translation>Zastąp</translation>
    </message>
    <message>
        <source>Export standard…</source>
        <translation>Eksport standardowych…</translation>
    </message>
    <message>
        <source>Export population…</source>
        <translation>Eksport populacji…</translation>
    </message>
    <message>
        <source>Clear overrides…</source>
        <translation>Usuń zamiany…</translation>
    </message>
    <message>
        <source>Export Standard Ranges</source>
        <translation>Eksport zakresów standardowych</translation>
    </message>
    <message>
        <source>Export Population Ranges</source>
        <translation>Eksport zakresów populacji</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Clear standard overrides</source>
        <translation>Usuwanie zamian: standardowe</translation>
    </message>
    <message>
        <source>Clear population overrides</source>
        <translation>Usuwanie zamian: populacja</translation>
    </message>
    <message>
        <source>Clear all locally overridden standard ranges for %1?</source>
        <translation>Usunąć wszystkie lokalne zamiany zakresów standardowych dla %1?</translation>
    </message>
    <message>
        <source>Clear all locally overridden population ranges for %1?</source>
        <translation>Usunąć wszystkie lokalne zamiany zakresów populacji dla %1?</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Usuń</translation>
    </message>
</context>
<context>
    <name>DrillBar</name>
    <message>
        <source>Stop drill</source>
        <translation>Zakończ trening</translation>
    </message>
    <message>
        <source>Drill spot</source>
        <translation>Trenuj spot</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>Documents</source>
        <translation>Dokumenty</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Pulpit</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Pobrane</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Domowy</translation>
    </message>
    <message>
        <source>There is no folder “%1”.</source>
        <translation>Folder „%1” nie istnieje.</translation>
    </message>
    <message>
        <source>There is no file “%1” here.</source>
        <translation>Nie ma tu pliku „%1”.</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>W górę</translation>
    </message>
    <message>
        <source>Nothing to choose here.</source>
        <translation>Nie ma tu nic do wyboru.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Typ pliku</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Replace file?</source>
        <translation>Zastąpić plik?</translation>
    </message>
    <message>
        <source>“%1” is there already. Saving replaces what it holds.</source>
        <translation>Plik „%1” już istnieje. Zapisanie zastąpi jego zawartość.</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>Zachowaj</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Zastąp</translation>
    </message>
</context>
<context>
    <name>FileList</name>
    <message>
        <source>Files</source>
        <translation>Pliki</translation>
    </message>
    <message>
        <source>Folder %1</source>
        <translation>Folder %1</translation>
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
        <translation>Ustawienia gry</translation>
    </message>
    <message>
        <source>Starting Pot</source>
        <translation>Pula początkowa</translation>
    </message>
    <message>
        <source>e.g., 100</source>
        <translation>np. 100</translation>
    </message>
    <message>
        <source>Effective Stack</source>
        <translation>Efektywny stack</translation>
    </message>
    <message>
        <source>Rake (%)</source>
        <translation>Rake (%)</translation>
    </message>
    <message>
        <source>e.g., 5.0</source>
        <translation>np. 5.0</translation>
    </message>
    <message>
        <source>Rake Cap</source>
        <translation>Cap rake’u</translation>
    </message>
    <message>
        <source>e.g., 0</source>
        <translation>np. 0</translation>
    </message>
    <message>
        <source>Target Exploitability (%)</source>
        <translation>Cel (% puli)</translation>
    </message>
    <message>
        <source>e.g., 0.10</source>
        <translation>np. 0.10</translation>
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
        <translation>Drzewo gry</translation>
    </message>
</context>
<context>
    <name>HandBuckets</name>
    <message>
        <source>air</source>
        <translation>powietrze</translation>
    </message>
    <message>
        <source>back door flush draw</source>
        <translation>backdoor do koloru</translation>
    </message>
    <message>
        <source>bottom pair</source>
        <translation>dolna para</translation>
    </message>
    <message>
        <source>dry pair</source>
        <translation>underpara</translation>
    </message>
    <message>
        <source>flush</source>
        <translation>kolor</translation>
    </message>
    <message>
        <source>flush draw</source>
        <translation>draw do koloru</translation>
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
        <translation>środkowa para</translation>
    </message>
    <message>
        <source>missed FD</source>
        <translation>nietrafiony FD</translation>
    </message>
    <message>
        <source>missed OESD</source>
        <translation>nietrafiony OESD</translation>
    </message>
    <message>
        <source>missed gutter</source>
        <translation>nietrafiony gutshot</translation>
    </message>
    <message>
        <source>open ended straight draw</source>
        <translation>obustronny draw do strita</translation>
    </message>
    <message>
        <source>overpair</source>
        <translation>overpara</translation>
    </message>
    <message>
        <source>quads</source>
        <translation>kareta</translation>
    </message>
    <message>
        <source>set</source>
        <translation>set</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>strit</translation>
    </message>
    <message>
        <source>straight flush</source>
        <translation>poker</translation>
    </message>
    <message>
        <source>top pair</source>
        <translation>top para</translation>
    </message>
    <message>
        <source>trips</source>
        <translation>trips</translation>
    </message>
    <message>
        <source>two pair</source>
        <translation>dwie pary</translation>
    </message>
</context>
<context>
    <name>HandDetails</name>
    <message>
        <source>Hand details</source>
        <translation>Szczegóły rozdania</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
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
        <translation>Ręce</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Podsumowanie</translation>
    </message>
</context>
<context>
    <name>HandDetailsCard</name>
    <message>
        <source>Loading hand combos…</source>
        <translation>Wczytywanie combo…</translation>
    </message>
    <message>
        <source>No hand combos to display for this node.</source>
        <translation>Brak combo do pokazania w tym węźle.</translation>
    </message>
    <message>
        <source>No combos match the current filters.</source>
        <translation>Żadne combo nie spełnia filtrów.</translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation>Szczegóły rąk</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Search (JJ, 56s, JcJd, ...)</source>
        <translation>Szukaj (JJ, 56s, JcJd, …)</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtr: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
</context>
<context>
    <name>HandLog</name>
    <message>
        <source>Hand Log</source>
        <translation>Historia rozdań</translation>
    </message>
    <message>
        <source>%1 hands</source>
        <translation>Rozdania: %1</translation>
    </message>
    <message>
        <source>Hands that you finish are listed here.</source>
        <translation>Tu pojawią się rozegrane rozdania.</translation>
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
        <translation>Idealnie</translation>
    </message>
</context>
<context>
    <name>HandMatrix</name>
    <message>
        <source>Hands</source>
        <translation>Ręce</translation>
    </message>
    <message>
        <source>%1, weight %2%</source>
        <translation>%1, waga %2%</translation>
    </message>
</context>
<context>
    <name>HandSummary</name>
    <message>
        <source>Winner: %1</source>
        <translation>Zwycięzca: %1</translation>
    </message>
    <message>
        <source>Won: %1</source>
        <translation>Wygrana: %1</translation>
    </message>
    <message>
        <source>Rake: %1</source>
        <translation>Rake: %1</translation>
    </message>
    <message>
        <source>EV lost: %1</source>
        <translation>Strata EV: %1</translation>
    </message>
    <message>
        <source>Incorrect: %1</source>
        <translation>Błąd: %1</translation>
    </message>
    <message>
        <source>Correct: %1</source>
        <translation>Poprawnie: %1</translation>
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
        <translation>Nowoczesny i wydajny solver do hold’ema</translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation>Nowe obliczenia</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Otwórz plik</translation>
    </message>
</context>
<context>
    <name>ImportRange</name>
    <message>
        <source>Import failed: %1</source>
        <translation>Błąd importu: %1</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>nieznany błąd</translation>
    </message>
    <message>
        <source>Import failed: file contained no recognizable hands.</source>
        <translation>Błąd importu: w pliku nie rozpoznano żadnych rąk.</translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation>Importuj zakres</translation>
    </message>
    <message>
        <source>Range text (*.txt)</source>
        <translation>Tekst zakresu (*.txt)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Name this range:</source>
        <translation>Nazwa zakresu:</translation>
    </message>
    <message>
        <source>e.g., BTN open (custom)</source>
        <translation>np. BTN open (własny)</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importuj</translation>
    </message>
</context>
<context>
    <name>LibraryColumn</name>
    <message>
        <source>No ranges yet.</source>
        <translation>Brak zakresów.</translation>
    </message>
</context>
<context>
    <name>LibraryRow</name>
    <message>
        <source>Open folder</source>
        <translation>Otwarty folder</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
</context>
<context>
    <name>LicensesCard</name>
    <message>
        <source>Licenses</source>
        <translation>Licencje</translation>
    </message>
    <message>
        <source>Qt Framework</source>
        <translation>Qt Framework</translation>
    </message>
    <message>
        <source>Runtime (dynamic linking)</source>
        <translation>Biblioteki uruchomieniowe (łączenie dynamiczne)</translation>
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
        <translation>Wielowątkowość</translation>
    </message>
    <message>
        <source>Apache 2.0</source>
        <translation>Apache 2.0</translation>
    </message>
    <message>
        <source>Third-party notices and license texts are included in the &apos;licenses&apos; folder next to the executable.</source>
        <translation>Noty prawne innych twórców i teksty licencji znajdują się w folderze „licenses” obok pliku programu.</translation>
    </message>
    <message>
        <source>Open licenses folder</source>
        <translation>Otwórz folder licencji</translation>
    </message>
    <message>
        <source>Open notices</source>
        <translation>Otwórz noty prawne</translation>
    </message>
</context>
<context>
    <name>LoadProfileDialog</name>
    <message>
        <source>Please select a profile.</source>
        <translation>Wybierz profil.</translation>
    </message>
    <message>
        <source>Load Settings Profile</source>
        <translation>Wczytaj profil ustawień</translation>
    </message>
    <message>
        <source>Choose a saved profile:</source>
        <translation>Wybierz zapisany profil:</translation>
    </message>
    <message>
        <source>No saved profiles yet.</source>
        <translation>Brak zapisanych profili.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Wczytaj</translation>
    </message>
    <message>
        <source>Delete settings profile</source>
        <translation>Usuń profil ustawień</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this saved profile?</source>
        <translation>Czy na pewno usunąć ten zapisany profil?</translation>
    </message>
</context>
<context>
    <name>LockModeButtons</name>
    <message>
        <source>Standard mode</source>
        <translation>Tryb standardowy</translation>
    </message>
    <message>
        <source>Node-lock mode</source>
        <translation>Tryb nodelock</translation>
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
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>NodeBox</name>
    <message>
        <source>Pot</source>
        <translation>Pula</translation>
    </message>
    <message>
        <source>Stack (%1)</source>
        <translation>Stack (%1)</translation>
    </message>
    <message>
        <source>To call</source>
        <translation>Do calla</translation>
    </message>
</context>
<context>
    <name>NodeLockPanel</name>
    <message>
        <source>Node-Locking</source>
        <translation>Nodelock</translation>
    </message>
    <message>
        <source>Node-locking is only available on decision nodes.</source>
        <translation>Nodelock działa tylko w węzłach decyzyjnych.</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Waga</translation>
    </message>
    <message>
        <source>0..1</source>
        <translation>0..1</translation>
    </message>
    <message>
        <source>Reset weights</source>
        <translation>Resetuj wagi</translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation>Przelicz</translation>
    </message>
    <message>
        <source>Tip: select an action above, then click a hand cell in the matrix to lock it.</source>
        <translation>Wskazówka: wybierz akcję powyżej, a potem kliknij rękę w macierzy, aby ją zablokować.</translation>
    </message>
    <message>
        <source>Undo reset</source>
        <translation>Cofnij reset</translation>
    </message>
</context>
<context>
    <name>NodeLocks</name>
    <message>
        <source>The weight must be a number from 0 to 1</source>
        <translation>Waga musi być liczbą od 0 do 1</translation>
    </message>
</context>
<context>
    <name>NodeView</name>
    <message>
        <source>Random river card</source>
        <translation>Losowa karta rivera</translation>
    </message>
    <message>
        <source>Random turn card</source>
        <translation>Losowa karta turna</translation>
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
        <translation>Podaj liczbę od %1 do %2 (miejsca po przecinku: najwyżej %3).</translation>
    </message>
    <message>
        <source>Enter a whole number from %1 to %2.</source>
        <translation>Podaj liczbę całkowitą od %1 do %2.</translation>
    </message>
</context>
<context>
    <name>PlayActionButton</name>
    <message>
        <source>Key %1</source>
        <translation>Klawisz %1</translation>
    </message>
</context>
<context>
    <name>PlayPanel</name>
    <message>
        <source>Play vs. Solution</source>
        <translation>Gra z solverem</translation>
    </message>
    <message>
        <source>Role: %1</source>
        <translation>Rola: %1</translation>
    </message>
    <message>
        <source>Choose a role to start</source>
        <translation>Wybierz rolę, aby zacząć</translation>
    </message>
    <message>
        <source>No hands can be dealt here. Solve the spot again to play it.</source>
        <translation>Nie można tu rozdać kart. Przelicz spot ponownie, aby go rozegrać.</translation>
    </message>
    <message>
        <source>Hand Log</source>
        <translation>Historia rozdań</translation>
    </message>
    <message>
        <source>Hand details</source>
        <translation>Szczegóły rozdania</translation>
    </message>
    <message>
        <source>Choose a hand in the log.</source>
        <translation>Wybierz rozdanie z historii.</translation>
    </message>
</context>
<context>
    <name>PlayPrompt</name>
    <message>
        <source>%1 loses %2 EV. Best: %3</source>
        <translation>%1 traci %2 EV. Najlepiej: %3</translation>
    </message>
    <message>
        <source>Perfect</source>
        <translation>Idealnie</translation>
    </message>
    <message>
        <source>Another hand</source>
        <translation>Kolejne rozdanie</translation>
    </message>
</context>
<context>
    <name>PlaySeat</name>
    <message>
        <source>%1: no cards</source>
        <translation>%1: brak kart</translation>
    </message>
    <message>
        <source>%1: opponent&apos;s cards, face down</source>
        <translation>%1: karty przeciwnika, zakryte</translation>
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
        <translation>Błąd — najlepiej: %1 (EV -%2)</translation>
    </message>
    <message>
        <source>Correct</source>
        <translation>Dobrze</translation>
    </message>
</context>
<context>
    <name>PlayTable</name>
    <message>
        <source>Table</source>
        <translation>Stół</translation>
    </message>
    <message>
        <source>Dealer button</source>
        <translation>Button dealera</translation>
    </message>
    <message>
        <source>Pot: %1</source>
        <translation>Pula: %1</translation>
    </message>
    <message>
        <source>Click Turn/River to change</source>
        <translation>Kliknij turn/river, aby zmienić</translation>
    </message>
    <message>
        <source>OOP action: %1</source>
        <translation>Akcja OOP: %1</translation>
    </message>
</context>
<context>
    <name>PlayingCard</name>
    <message>
        <source>Face-down card</source>
        <translation>Zakryta karta</translation>
    </message>
    <message>
        <source>Empty card slot</source>
        <translation>Puste miejsce na kartę</translation>
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
        <translation>Iteracja %1 | eksploatowalność: %2</translation>
    </message>
    <message>
        <source>Ready to solve</source>
        <translation>Gotowy do obliczeń</translation>
    </message>
    <message>
        <source>Finalizing…</source>
        <translation>Finalizowanie…</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Solver converged — finalizing results…</source>
        <translation>Solver osiągnął zbieżność — finalizowanie wyników…</translation>
    </message>
    <message>
        <source>Window %1/%2</source>
        <translation>Okno %1/%2</translation>
    </message>
    <message>
        <source>Iterations: %1</source>
        <translation>Iteracje: %1</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Wskaźniki</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <translation>Upłynęło</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Pozostało</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Szybkość</translation>
    </message>
    <message>
        <source>it/s</source>
        <translation>it./s</translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation>Eksploat.</translation>
    </message>
    <message>
        <source>Measuring...</source>
        <translation>Pomiar…</translation>
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
        <translation>Projekt Velmora (*.velmoraproj)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Zapisz projekt</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Otwórz projekt</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>nieznany błąd</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
</context>
<context>
    <name>ProjectHeader</name>
    <message>
        <source>Project Setup</source>
        <translation>Konfiguracja projektu</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Gotowy</translation>
    </message>
    <message>
        <source>Setup Required</source>
        <translation>Wymaga konfiguracji</translation>
    </message>
    <message>
        <source>Solve RAM: %1</source>
        <translation>RAM na obliczenia: %1</translation>
    </message>
    <message>
        <source>Available RAM: %1</source>
        <translation>Dostępny RAM: %1</translation>
    </message>
    <message>
        <source>Continue to Solve →</source>
        <translation>Do obliczeń →</translation>
    </message>
    <message>
        <source>Solve RAM: being estimated…</source>
        <translation>RAM na obliczenia: szacowanie…</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>Take back the last change (Ctrl+Z)</source>
        <translation>Cofnij ostatnią zmianę (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>Bring back what was undone (Ctrl+Shift+Z)</source>
        <translation>Przywróć cofniętą zmianę (Ctrl+Shift+Z)</translation>
    </message>
</context>
<context>
    <name>QuestionDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>QuickActionsCard</name>
    <message>
        <source>Quick Actions</source>
        <translation>Szybki start</translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation>Nowe obliczenia</translation>
    </message>
    <message>
        <source>Configure board, ranges, tree</source>
        <translation>Ustaw board, zakresy, drzewo</translation>
    </message>
    <message>
        <source>Quick Solve</source>
        <translation>Szybkie obliczenia</translation>
    </message>
    <message>
        <source>Use default settings</source>
        <translation>Z ustawieniami domyślnymi</translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation>Importuj zakres</translation>
    </message>
    <message>
        <source>Load from file</source>
        <translation>Wczytaj z pliku</translation>
    </message>
</context>
<context>
    <name>RangeCard</name>
    <message>
        <source>OOP Range</source>
        <translation>Zakres OOP</translation>
    </message>
    <message>
        <source>IP Range</source>
        <translation>Zakres IP</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Waga</translation>
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
        <translation>Zakres</translation>
    </message>
    <message>
        <source>%1 hands</source>
        <translation>Ręce: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>np. AA, KK, AKs, QQ+ lub 50%</translation>
    </message>
</context>
<context>
    <name>RangeLibraries</name>
    <message>
        <source>Standard Ranges</source>
        <translation>Zakresy standardowe</translation>
    </message>
    <message>
        <source>Population Ranges</source>
        <translation>Zakresy populacji</translation>
    </message>
    <message>
        <source>Custom Ranges</source>
        <translation>Własne zakresy</translation>
    </message>
    <message>
        <source>Please enter a name.</source>
        <translation>Podaj nazwę.</translation>
    </message>
    <message>
        <source>No range content to import.</source>
        <translation>Brak zakresu do zaimportowania.</translation>
    </message>
    <message>
        <source>Import failed.</source>
        <translation>Błąd importu.</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Błąd eksportu: %1</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>nieznany błąd</translation>
    </message>
    <message>
        <source>Failed to load bundled standard presets (resource file missing/empty).</source>
        <translation>Nie udało się wczytać wbudowanych zakresów standardowych (brak pliku zasobów lub jest pusty).</translation>
    </message>
    <message>
        <source>Failed to load bundled presets: </source>
        <translation>Nie udało się wczytać wbudowanych zakresów: </translation>
    </message>
</context>
<context>
    <name>RangeTextField</name>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>np. AA, KK, AKs, QQ+ lub 50%</translation>
    </message>
</context>
<context>
    <name>RecentRunsCard</name>
    <message>
        <source>Recent Runs</source>
        <translation>Ostatnie obliczenia</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>No runs yet — click Start Solve to record a run here.</source>
        <translation>Brak obliczeń — kliknij „Uruchom obliczenia”, aby pojawiły się tutaj.</translation>
    </message>
</context>
<context>
    <name>ResultNotices</name>
    <message>
        <source>The last solve was cancelled. These are the results of the solve before.</source>
        <translation>Ostatnie obliczenia anulowano. To wyniki poprzednich obliczeń.</translation>
    </message>
    <message>
        <source>The last solve was not started: %1. These are the results of the solve before.</source>
        <translation>Ostatnich obliczeń nie uruchomiono: %1. To wyniki poprzednich obliczeń.</translation>
    </message>
    <message>
        <source>The last solve failed: %1. These are the results of the solve before.</source>
        <translation>Ostatnie obliczenia się nie powiodły: %1. To wyniki poprzednich obliczeń.</translation>
    </message>
    <message>
        <source>Solving. These are the results of the solve before, until the new ones are there. %1</source>
        <translation>Obliczanie. Do czasu uzyskania nowych wyników widać wyniki poprzednich obliczeń. %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Figures of this node are missing: %1</source>
        <translation>Brakuje danych tego węzła: %1</translation>
    </message>
    <message>
        <source>The node locks (%1) are not solved yet. At their nodes the grid, the buckets and the hands show a preview; all other figures are those from before.</source>
        <translation>Nodelocki (%1) nie zostały jeszcze przeliczone. W ich węzłach macierz, kategorie i ręce pokazują podgląd; wszystkie pozostałe wartości są dotychczasowe.</translation>
    </message>
    <message>
        <source>The node locks of this result were removed. It still shows the solve with them.</source>
        <translation>Nodelocki tego wyniku usunięto. Wynik nadal pokazuje obliczenia z nimi.</translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation>Przelicz</translation>
    </message>
    <message>
        <source>The node locks keep the exploitability from falling any further. The solve ended above its target.</source>
        <translation>Nodelocki nie pozwalają na dalszy spadek eksploatowalności. Obliczenia zakończyły się powyżej celu.</translation>
    </message>
    <message>
        <source>Setup has changed since this solve</source>
        <translation>„Projekt” zmienił się od czasu tych obliczeń</translation>
    </message>
    <message>
        <source>Solve again</source>
        <translation>Oblicz ponownie</translation>
    </message>
    <message>
        <source>Take back the setup of this result</source>
        <translation>Przywróć projekt tego wyniku</translation>
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
        <translation>Ruch: %1</translation>
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
        <translation>Eksploat.</translation>
    </message>
    <message>
        <source>Range view</source>
        <translation>Widok zakresu</translation>
    </message>
    <message>
        <source>Play vs solution</source>
        <translation>Gra z solverem</translation>
    </message>
</context>
<context>
    <name>RoleChoice</name>
    <message>
        <source>Play as OOP</source>
        <translation>Graj jako OOP</translation>
    </message>
    <message>
        <source>Play as both</source>
        <translation>Graj za obie strony</translation>
    </message>
    <message>
        <source>Play as IP</source>
        <translation>Graj jako IP</translation>
    </message>
</context>
<context>
    <name>RunHistory</name>
    <message>
        <source>Target %1% (≈ %2) • Threads %3</source>
        <translation>Cel: %1% (≈ %2) • Wątki: %3</translation>
    </message>
    <message>
        <source>At most %1 iterations</source>
        <translation>Iteracje: najwyżej %1</translation>
    </message>
    <message>
        <source>%1 iterations</source>
        <translation>Iteracje: %1</translation>
    </message>
</context>
<context>
    <name>RunRow</name>
    <message>
        <source>Running</source>
        <translation>W toku</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Ukończone</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Anulowane</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Niepowodzenie</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Odrzucone</translation>
    </message>
</context>
<context>
    <name>SeatLibrary</name>
    <message>
        <source>Please enter a name.</source>
        <translation>Podaj nazwę.</translation>
    </message>
    <message>
        <source>Current range is empty.</source>
        <translation>Bieżący zakres jest pusty.</translation>
    </message>
    <message>
        <source>Please enter a folder name.</source>
        <translation>Podaj nazwę folderu.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Przywróć domyślne</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Zapisz ustawienia</translation>
    </message>
</context>
<context>
    <name>SettingsProfilesCard</name>
    <message>
        <source>Load settings</source>
        <translation>Wczytaj profil</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Zapisz profil</translation>
    </message>
    <message>
        <source>Please enter a name.</source>
        <translation>Podaj nazwę.</translation>
    </message>
    <message>
        <source>Save Settings Profile</source>
        <translation>Zapisz profil ustawień</translation>
    </message>
    <message>
        <source>Profile name:</source>
        <translation>Nazwa profilu:</translation>
    </message>
    <message>
        <source>e.g., 100bb rake-free (fast)</source>
        <translation>np. 100bb bez rake’u (szybki)</translation>
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
        <translation>Solver pokerowy</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Overview &amp; quick actions</source>
        <translation>Przegląd i szybki start</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Board, ranges, tree</source>
        <translation>Board, zakresy, drzewo</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Obliczenia</translation>
    </message>
    <message>
        <source>Run solver</source>
        <translation>Uruchom solver</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Wyniki</translation>
    </message>
    <message>
        <source>Browse strategies</source>
        <translation>Przegląd strategii</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencje</translation>
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
        <translation>Bety (%)</translation>
    </message>
    <message>
        <source>Raise sizes (%)</source>
        <translation>Raise’y (%)</translation>
    </message>
    <message>
        <source>Add All-In</source>
        <translation>Z all-inem</translation>
    </message>
    <message>
        <source>Don&apos;t donk</source>
        <translation>Bez donków</translation>
    </message>
    <message>
        <source>Add all-in if jam less than</source>
        <translation>All-in, jeśli poniżej</translation>
    </message>
    <message>
        <source>e.g. 30</source>
        <translation>np. 30</translation>
    </message>
    <message>
        <source>% pot</source>
        <translation>% puli</translation>
    </message>
</context>
<context>
    <name>SolveActivityCard</name>
    <message>
        <source>Solve Activity</source>
        <translation>Aktywność obliczeń</translation>
    </message>
    <message>
        <source>Last 52 weeks</source>
        <translation>Ostatnie 52 tygodnie</translation>
    </message>
</context>
<context>
    <name>SolveFollower</name>
    <message>
        <source>Iteration %1 | exploitability=%2</source>
        <translation>Iteracja %1 | eksploatowalność: %2</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Błąd: %1</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Done: node locks keep the exploitability from falling</source>
        <translation>Gotowe: nodelocki nie pozwalają na spadek eksploatowalności</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Anulowane</translation>
    </message>
    <message>
        <source>Building the cards and the tree...</source>
        <translation>Budowanie kart i drzewa…</translation>
    </message>
    <message>
        <source>Preparing the solver...</source>
        <translation>Przygotowywanie solvera…</translation>
    </message>
    <message>
        <source>Starting the solver...</source>
        <translation>Uruchamianie solvera…</translation>
    </message>
    <message>
        <source>Computing the results...</source>
        <translation>Obliczanie wyników…</translation>
    </message>
    <message>
        <source>Collecting the tree...</source>
        <translation>Zbieranie drzewa…</translation>
    </message>
</context>
<context>
    <name>SolvePage</name>
    <message>
        <source>Solve</source>
        <translation>Obliczenia</translation>
    </message>
    <message>
        <source>Run the CFR solver and monitor progress in real-time.</source>
        <translation>Uruchom solver CFR i śledź postęp na bieżąco.</translation>
    </message>
    <message>
        <source>Finalizing</source>
        <translation>Finalizowanie</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>W toku</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Gotowy</translation>
    </message>
</context>
<context>
    <name>StatusChip</name>
    <message>
        <source>Finalizing</source>
        <translation>Finalizowanie</translation>
    </message>
    <message>
        <source>Solving</source>
        <translation>Obliczanie</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Gotowy</translation>
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
        <translation>Strategia dla rąk</translation>
    </message>
    <message>
        <source>Strategy by Hand (preview, not solved yet)</source>
        <translation>Strategia dla rąk (podgląd, jeszcze nie obliczono)</translation>
    </message>
</context>
<context>
    <name>StrategyViews</name>
    <message>
        <source>Buckets</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation>Szczegóły rąk</translation>
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
        <translation>Silnik</translation>
    </message>
    <message>
        <source>Dunmarrow Core</source>
        <translation>Dunmarrow Core</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Wątki</translation>
    </message>
    <message>
        <source>%1 available</source>
        <translation>Dostępne: %1</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Pamięć</translation>
    </message>
    <message>
        <source>%1 (%2 free)</source>
        <translation>%1 (wolne %2)</translation>
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
        <translation>Utwórz lub wczytaj projekt na karcie „Start”, aby odblokować „Projekt”</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Obliczenia</translation>
    </message>
    <message>
        <source>Fill board, ranges, and sizings to enable Solve</source>
        <translation>Uzupełnij board, zakresy i sizingi, aby odblokować „Obliczenia”</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Wyniki</translation>
    </message>
    <message>
        <source>Run a solve to enable Results</source>
        <translation>Wykonaj obliczenia, aby odblokować „Wyniki”</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>%1. Still missing: %2.</source>
        <translation>%1. Nadal brakuje: %2.</translation>
    </message>
</context>
<context>
    <name>TrainerStatsCard</name>
    <message>
        <source>Play vs. Solution</source>
        <translation>Gra z solverem</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Clear Play vs. Solution Stats</source>
        <translation>Wyczyść statystyki gry z solverem</translation>
    </message>
    <message>
        <source>Hands (Today / Total)</source>
        <translation>Rozdania (dziś/razem)</translation>
    </message>
    <message>
        <source>Accuracy (Today / Total)</source>
        <translation>Trafność (dziś/razem)</translation>
    </message>
    <message>
        <source>Avg EV Loss (Today / Total)</source>
        <translation>Śr. strata EV (dziś/razem)</translation>
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
        <translation>Dostępne akcje</translation>
    </message>
    <message>
        <source>%1 options</source>
        <translation>Opcje: %1</translation>
    </message>
    <message>
        <source>Deal %1</source>
        <translation>Karta: %1</translation>
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
        <translation>Koniec</translation>
    </message>
    <message>
        <source>Deal</source>
        <translation>Karta</translation>
    </message>
    <message>
        <source>Pot: %1</source>
        <translation>Pula: %1</translation>
    </message>
    <message>
        <source>Freq: %1%</source>
        <translation>Częst.: %1%</translation>
    </message>
    <message>
        <source>EV: %1%2</source>
        <translation>EV: %1%2</translation>
    </message>
    <message>
        <source>Collapse %1</source>
        <translation>Zwiń %1</translation>
    </message>
    <message>
        <source>Expand %1</source>
        <translation>Rozwiń %1</translation>
    </message>
</context>
<context>
    <name>TreeWalk</name>
    <message>
        <source>Root</source>
        <translation>Korzeń</translation>
    </message>
</context>
<context>
    <name>UpdateManager</name>
    <message>
        <source>Update URL is not configured.</source>
        <translation>Adres aktualizacji nie jest ustawiony.</translation>
    </message>
    <message>
        <source>Update check failed: %1</source>
        <translation>Nie udało się sprawdzić aktualizacji: %1</translation>
    </message>
    <message>
        <source>Invalid update response (HTTP %1).</source>
        <translation>Nieprawidłowa odpowiedź serwera aktualizacji (HTTP %1).</translation>
    </message>
    <message>
        <source>No download URL available.</source>
        <translation>Brak adresu pobierania.</translation>
    </message>
</context>
<context>
    <name>UpdatesCard</name>
    <message>
        <source>Last checked: %1</source>
        <translation>Ostatnie sprawdzenie: %1</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aktualizacje</translation>
    </message>
    <message>
        <source>Current version: %1</source>
        <translation>Bieżąca wersja: %1</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>nieznana</translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation>Dostępna aktualizacja: %1</translation>
    </message>
    <message>
        <source>Checking...</source>
        <translation>Sprawdzanie…</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Sprawdź aktualizacje</translation>
    </message>
    <message>
        <source>Download update</source>
        <translation>Pobierz aktualizację</translation>
    </message>
</context>
<context>
    <name>card_names</name>
    <message>
        <source>spades</source>
        <translation>pik</translation>
    </message>
    <message>
        <source>hearts</source>
        <translation>kier</translation>
    </message>
    <message>
        <source>diamonds</source>
        <translation>karo</translation>
    </message>
    <message>
        <source>clubs</source>
        <translation>trefl</translation>
    </message>
    <message>
        <source>Ace</source>
        <translation>As</translation>
    </message>
    <message>
        <source>King</source>
        <translation>Król</translation>
    </message>
    <message>
        <source>Queen</source>
        <translation>Dama</translation>
    </message>
    <message>
        <source>Jack</source>
        <translation>Walet</translation>
    </message>
    <message>
        <source>Ten</source>
        <translation>Dziesiątka</translation>
    </message>
    <message>
        <source>Nine</source>
        <translation>Dziewiątka</translation>
    </message>
    <message>
        <source>Eight</source>
        <translation>Ósemka</translation>
    </message>
    <message>
        <source>Seven</source>
        <translation>Siódemka</translation>
    </message>
    <message>
        <source>Six</source>
        <translation>Szóstka</translation>
    </message>
    <message>
        <source>Five</source>
        <translation>Piątka</translation>
    </message>
    <message>
        <source>Four</source>
        <translation>Czwórka</translation>
    </message>
    <message>
        <source>Three</source>
        <translation>Trójka</translation>
    </message>
    <message>
        <source>Two</source>
        <translation>Dwójka</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 %2</translation>
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
        <translation>Bez rake’u</translation>
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
        <translation>Słabsi regowie</translation>
    </message>
    <message>
        <source>Tighter reg</source>
        <translation>Ciaśniejszy reg</translation>
    </message>
    <message>
        <source>Looser reg</source>
        <translation>Luźniejszy reg</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Inni</translation>
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
        <translation>Pasywny</translation>
    </message>
    <message>
        <source>Passive tight</source>
        <translation>Pasywny ciasny</translation>
    </message>
    <message>
        <source>Passive neutral</source>
        <translation>Pasywny neutralny</translation>
    </message>
    <message>
        <source>Passive loose</source>
        <translation>Pasywny luźny</translation>
    </message>
    <message>
        <source>Extreme loose</source>
        <translation>Skrajnie luźny</translation>
    </message>
    <message>
        <source>Loose aggressive</source>
        <translation>Luźny agresywny</translation>
    </message>
    <message>
        <source>Standard LAG</source>
        <translation>Standardowy LAG</translation>
    </message>
    <message>
        <source>Maniac</source>
        <translation>Maniak</translation>
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
        <translation>Pn</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Wt</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Śr</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Cz</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Pt</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>So</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Nd</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>Sty</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>Lut</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>Mar</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Kwi</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>Cze</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>Lip</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Sie</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Wrz</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Paź</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Lis</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Gru</translation>
    </message>
    <message>
        <source>%1 (future)</source>
        <translation>%1 (przyszłość)</translation>
    </message>
    <message>
        <source>Solves: %1</source>
        <translation>Obliczenia: %1</translation>
    </message>
    <message>
        <source>Avg iters: %1</source>
        <translation>Śr. liczba it.: %1</translation>
    </message>
    <message>
        <source>Avg expl: %1</source>
        <translation>Śr. eksploat.: %1</translation>
    </message>
</context>
</TS>

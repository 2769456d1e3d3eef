<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en_US">
<context>
    <name>AccentSwatch</name>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ActionFigures</name>
    <message>
        <source>%1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 combos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1% equity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 EV</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppController</name>
    <message>
        <source>Ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not enough RAM to solve (after clearing previous results)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Already running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No previous solve config (solve once first)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another file is still being saved or opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loaded project (%1 strategy nodes, %2 combo nodes)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unrecognized project format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsupported project version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid JSON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to save file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to open file: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppearanceCard</name>
    <message>
        <source>Appearance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use dark color scheme throughout the interface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the app language (takes effect immediately)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accent Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customize the app highlight color (buttons, accents, clubs/check).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purple</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orange</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BoardCard</name>
    <message>
        <source>Board</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BoardDisplay</name>
    <message>
        <source>River</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preflop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Board</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BucketRow</name>
    <message>
        <source>%1 combos</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BucketsCard</name>
    <message>
        <source>Buckets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 shown</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusyLabel</name>
    <message>
        <source>Loading…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CardPicker</name>
    <message>
        <source>Cards</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CardPickerDialog</name>
    <message>
        <source>Select card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>River card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flop card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CardPickerTile</name>
    <message>
        <source>Already used</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChancePicker</name>
    <message>
        <source>Choose River Card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Turn Card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Chip</name>
    <message>
        <source>×</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ComboRow</name>
    <message>
        <source>EV:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ComputeCard</name>
    <message>
        <source>Compute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Threads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Precision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The solver computes in Float32, whatever is chosen here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConfigurationCard</name>
    <message>
        <source>flop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>turn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>river</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OOP: don&apos;t donk on %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OOP: add all-in on %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP: add all-in on %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OOP: add all-in if jam &lt; %1% pot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP: add all-in if jam &lt; %1% pot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Street</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pot / Stack</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Target</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1% (= %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rake</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1% (cap %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bet sizes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F %1/%2 • T %3/%4 • R %5/%6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Controls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Solving...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Solve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View Results →</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeleteProfileDialog</name>
    <message>
        <source>Delete settings profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete this saved profile?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileProgress</name>
    <message>
        <source>%1%</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GameSettingsCard</name>
    <message>
        <source>Game Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starting Pot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>e.g., 100</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Effective Stack</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rake (%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>e.g., 5.0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rake Cap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>e.g., 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Target Exploitability (%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>e.g., 0.10</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1%</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GameTreePanel</name>
    <message>
        <source>Game Tree</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HandBuckets</name>
    <message>
        <source>air</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>back door flush draw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bottom pair</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dry pair</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>flush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>flush draw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>full house</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gutter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>middle pair</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>missed FD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>missed OESD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>missed gutter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>open ended straight draw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>overpair</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>straight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>straight flush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>top pair</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>trips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>two pair</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HandDetailsCard</name>
    <message>
        <source>Loading hand combos…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No hand combos to display for this node.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No combos match the current filters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search (JJ, 56s, JcJd, ...)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HandMatrix</name>
    <message>
        <source>Hands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, weight %2%</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HeroBand</name>
    <message>
        <source>Dunmarrow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A modern, high-performance holdem solver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open File</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Play vs. Solution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No hands played yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Solve Activity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last solve: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No solve in this session yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LicensesCard</name>
    <message>
        <source>Licenses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qt Framework</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Runtime (dynamic linking)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LGPL v3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>oneTBB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Threading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apache 2.0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Third-party notices and license texts are included in the &apos;licenses&apos; folder next to the executable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open licenses folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open notices</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LoadProfileDialog</name>
    <message>
        <source>Please select a profile.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load Settings Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a saved profile:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No saved profiles yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LockModeButtons</name>
    <message>
        <source>Standard mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Node-lock mode</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Dunmarrow</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MessageBox</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NodeBox</name>
    <message>
        <source>Pot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stack (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To call</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NodeLockPanel</name>
    <message>
        <source>Node-Locking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Node-locking is only available on decision nodes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0..1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset weights</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip: select an action above, then click a hand cell in the matrix to lock it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NodeView</name>
    <message>
        <source>Random river card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random turn card</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlayingCard</name>
    <message>
        <source>Face-down card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty card slot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProgressCard</name>
    <message>
        <source>Iteration %1 | exploitability=%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready to solve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finalizing…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Solver converged — finalizing results…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Window %1/%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Iterations: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elapsed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measuring...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProgressRing</name>
    <message>
        <source>%1%</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProjectFiles</name>
    <message>
        <source>Velmora Project (*.velmoraproj)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProjectHeader</name>
    <message>
        <source>Project Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setup Required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Solve RAM: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available RAM: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue to Solve →</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProjectPage</name>
    <message>
        <source>Import failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import failed: file contained no recognizable hands.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Range text (*.txt)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QuickActionsCard</name>
    <message>
        <source>Quick Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configure board, ranges, tree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick Solve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use default settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load from file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RangeCard</name>
    <message>
        <source>OOP Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RangeColumn</name>
    <message>
        <source>Hands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Combos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import range…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RangeEditor</name>
    <message>
        <source>Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 hands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RangeTextField</name>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecentRunsCard</name>
    <message>
        <source>Recent Runs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No runs yet — click Start Solve to record a run here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ResultsHeader</name>
    <message>
        <source>Strategy View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to act</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EV (OOP)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EV (IP)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RunHistory</name>
    <message>
        <source>Iterations %1 • Target %2% (≈ %3) • Threads %4</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RunRow</name>
    <message>
        <source>Running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Completed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SaveProfileDialog</name>
    <message>
        <source>Please enter a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Settings Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profile name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>e.g., 100bb rake-free (fast)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsProfilesCard</name>
    <message>
        <source>Load settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>♠</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dunmarrow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Poker Solver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overview &amp; quick actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Board, ranges, tree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Solve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run solver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse strategies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>v0.1.0 dev</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SizingCard</name>
    <message>
        <source>OOP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>River</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OOP Sizing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP Sizing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bet sizes (%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Raise sizes (%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add All-In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don&apos;t donk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add all-in if jam less than</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>e.g. 30</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>% pot</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SolvePage</name>
    <message>
        <source>Solve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run the CFR solver and monitor progress in real-time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finalizing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusChip</name>
    <message>
        <source>Finalizing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Solving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1%</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StrategyColumn</name>
    <message>
        <source>Strategy by Hand</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StrategyPanel</name>
    <message>
        <source>Action Frequencies</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SystemCard</name>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Engine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dunmarrow Core</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Threads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2 free)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Dunmarrow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start a new project (or load one) from Home to enable Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Solve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill board, ranges, and sizings to enable Solve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run a solve to enable Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TreeLevel</name>
    <message>
        <source>Available actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deal %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>River</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TreeNode</name>
    <message>
        <source>Terminal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pot: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Freq: %1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EV: %1%2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TreeWalk</name>
    <message>
        <source>Root</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdateManager</name>
    <message>
        <source>Update URL is not configured.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update check failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid update response (HTTP %1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No download URL available.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdatesCard</name>
    <message>
        <source>Last checked: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current version: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download update</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>card_names</name>
    <message>
        <source>spades</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hearts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>diamonds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>clubs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>King</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Queen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Jack</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seven</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Six</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Five</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Four</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Three</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>

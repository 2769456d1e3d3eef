<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en_US">
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
        <translation>Combos&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1% equity</source>
        <translation>Equity&#xa0;: %1%</translation>
    </message>
    <message>
        <source>%1 EV</source>
        <translation>EV&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ActionFrequencies</name>
    <message>
        <source>Action Frequencies</source>
        <translation>Fréquences des actions</translation>
    </message>
</context>
<context>
    <name>ActivityGrid</name>
    <message>
        <source>Solve Activity</source>
        <translation>Activité de calcul</translation>
    </message>
    <message>
        <source>Last 52 weeks</source>
        <translation>52 dernières semaines</translation>
    </message>
</context>
<context>
    <name>AppController</name>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Démarrage…</translation>
    </message>
    <message>
        <source>No previous solve config (solve once first)</source>
        <translation>Aucune configuration précédente (lancer d’abord un calcul)</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Annulation…</translation>
    </message>
    <message>
        <source>Another file is still being saved or opened</source>
        <translation>Un autre fichier est en cours d’enregistrement ou d’ouverture</translation>
    </message>
    <message>
        <source>Loaded project (%1 strategy nodes, %2 combo nodes)</source>
        <translation>Projet chargé (nœuds de stratégie&#xa0;: %1, nœuds de combos&#xa0;: %2)</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;Go</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <translation>Impossible d’ouvrir le fichier</translation>
    </message>
    <message>
        <source>Unrecognized project format</source>
        <translation>Format de projet non reconnu</translation>
    </message>
    <message>
        <source>Unsupported project version</source>
        <translation>Version de projet non prise en charge</translation>
    </message>
    <message>
        <source>Invalid JSON</source>
        <translation>JSON non valide</translation>
    </message>
    <message>
        <source>Failed to save file: %1</source>
        <translation>Échec de l’enregistrement&#xa0;: %1</translation>
    </message>
    <message>
        <source>Failed to open file: %1</source>
        <translation>Échec de l’ouverture&#xa0;: %1</translation>
    </message>
    <message>
        <source>Estimating the memory...</source>
        <translation>Estimation de la mémoire…</translation>
    </message>
    <message>
        <source>Not started: the solve needs the memory of the result on view</source>
        <translation>Non lancé&#xa0;: le calcul a besoin de la mémoire du résultat affiché</translation>
    </message>
    <message>
        <source>Not enough RAM to solve: %1 needed, %2 available</source>
        <translation>RAM insuffisante pour le calcul&#xa0;: %1 requis, %2 disponibles</translation>
    </message>
    <message>
        <source>Waiting for the cancelled solve to stop...</source>
        <translation>Attente de l’arrêt du calcul annulé…</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annulé</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>There is not enough memory for the answers of this node</source>
        <translation>Mémoire insuffisante pour les réponses de ce nœud</translation>
    </message>
    <message>
        <source>The board of the project is impossible: %1</source>
        <translation>Le board du projet est impossible : %1</translation>
    </message>
    <message>
        <source>Invalid JSON at byte %1, in %2</source>
        <translation>JSON non valide à l’octet %1, dans %2</translation>
    </message>
    <message>
        <source>Not ready: enter a valid board first</source>
        <translation>Pas prêt&#xa0;: saisissez d’abord un board valide</translation>
    </message>
    <message>
        <source>Not ready: select at least one hand in both ranges</source>
        <translation>Pas prêt&#xa0;: sélectionnez au moins une main dans les deux ranges</translation>
    </message>
    <message>
        <source>Not ready: fill out both OOP and IP sizing</source>
        <translation>Pas prêt&#xa0;: renseignez les tailles de mise OOP et IP</translation>
    </message>
    <message>
        <source>Solve failed: %1</source>
        <translation>Échec du calcul&#xa0;: %1</translation>
    </message>
    <message>
        <source>Board %1 | iters %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5</source>
        <translation>Board %1 | itér. %2 | expl.≈%3 | EV(oop)=%4 EV(ip)=%5</translation>
    </message>
    <message>
        <source>Invalid/non-local file URL</source>
        <translation>URL de fichier non valide ou non locale</translation>
    </message>
    <message>
        <source>Empty file path</source>
        <translation>Chemin de fichier vide</translation>
    </message>
</context>
<context>
    <name>AppShell</name>
    <message>
        <source>Start a new project (or load one) from Home to enable Project</source>
        <translation>Créer (ou charger) un projet depuis «&#xa0;Accueil&#xa0;» pour activer «&#xa0;Projet&#xa0;»</translation>
    </message>
    <message>
        <source>The memory that this solve takes could not be estimated.</source>
        <translation>Impossible d’estimer la mémoire requise par ce calcul.</translation>
    </message>
    <message>
        <source>Not enough memory: this solve takes %1, and %2 is available.</source>
        <translation>Mémoire insuffisante&#xa0;: ce calcul requiert %1, et %2 sont disponibles.</translation>
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
        <translation>Nouveau spot</translation>
    </message>
    <message>
        <source>Node locks</source>
        <translation>Node-locks</translation>
    </message>
    <message>
        <source>Node locks (%1) are set on the tree of this spot. Apply them in this solve?</source>
        <translation>Des node-locks (%1) sont posés sur l’arbre de ce spot. Les appliquer dans ce calcul&#x202f;?</translation>
    </message>
    <message>
        <source>Solve without locks</source>
        <translation>Calculer sans node-locks</translation>
    </message>
    <message>
        <source>Apply the locks</source>
        <translation>Appliquer les node-locks</translation>
    </message>
    <message>
        <source>A solve is running, and it will be cancelled.</source>
        <translation>Un calcul est en cours&#x202f;; il sera annulé.</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>The spot or its results are not saved.</source>
        <translation>Le spot ou ses résultats ne sont pas enregistrés.</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Cancel the solve</source>
        <translation>Annuler le calcul</translation>
    </message>
    <message>
        <source>Take back your spot?</source>
        <translation>Récupérer votre spot&#x202f;?</translation>
    </message>
    <message>
        <source>Dunmarrow did not close properly. The spot that you were editing was kept on %1.</source>
        <translation>Dunmarrow ne s’est pas fermé correctement. Le spot en cours de modification a été conservé (%1).</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Take it back</source>
        <translation>Récupérer</translation>
    </message>
    <message>
        <source>Not enough memory for both</source>
        <translation>Mémoire insuffisante pour les deux</translation>
    </message>
    <message>
        <source>This solve needs %1, and %2 are available. It can start if the solver of the result on view is dropped: of that result only what was looked at so far stays.</source>
        <translation>Ce calcul requiert %1, et %2 sont disponibles. Il peut démarrer si le solver du résultat affiché est abandonné&#xa0;: de ce résultat, il ne restera que ce qui a déjà été consulté.</translation>
    </message>
    <message>
        <source>Save first</source>
        <translation>Enregistrer d’abord</translation>
    </message>
    <message>
        <source>Solve without saving</source>
        <translation>Calculer sans enregistrer</translation>
    </message>
    <message>
        <source>%1 pot %2</source>
        <translation>%1 pot %2</translation>
    </message>
    <message>
        <source>Saved %1 at %2</source>
        <translation>%1 enregistré à %2</translation>
    </message>
</context>
<context>
    <name>AppearanceCard</name>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Dark Mode</source>
        <translation>Mode sombre</translation>
    </message>
    <message>
        <source>Use dark color scheme throughout the interface</source>
        <translation>Utiliser des couleurs sombres dans toute l’interface</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Change the app language (takes effect immediately)</source>
        <translation>Changer la langue de l’application (effet immédiat)</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>Accent Color</source>
        <translation>Couleur d’accent</translation>
    </message>
    <message>
        <source>Customize the app highlight color (buttons, accents, clubs/check).</source>
        <translation>Personnaliser la couleur d’accent (boutons, accents, trèfle/check).</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Violet</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Or</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
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
        <translation>Préflop</translation>
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
        <translation>Combos&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>BucketsCard</name>
    <message>
        <source>Buckets</source>
        <translation>Catégories</translation>
    </message>
    <message>
        <source>%1 shown</source>
        <translation>Affichées&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>BusyLabel</name>
    <message>
        <source>Loading…</source>
        <translation>Chargement…</translation>
    </message>
</context>
<context>
    <name>CardPicker</name>
    <message>
        <source>Cards</source>
        <translation>Cartes</translation>
    </message>
</context>
<context>
    <name>CardPickerDialog</name>
    <message>
        <source>Select card</source>
        <translation>Choisir une carte</translation>
    </message>
    <message>
        <source>River card</source>
        <translation>Carte river</translation>
    </message>
    <message>
        <source>Turn card</source>
        <translation>Carte turn</translation>
    </message>
    <message>
        <source>Flop card</source>
        <translation>Carte du flop</translation>
    </message>
    <message>
        <source>Clear card</source>
        <translation>Retirer la carte</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>CardPickerTile</name>
    <message>
        <source>Already used</source>
        <translation>Déjà utilisée</translation>
    </message>
</context>
<context>
    <name>ChancePicker</name>
    <message>
        <source>Choose River Card</source>
        <translation>Choisir la carte river</translation>
    </message>
    <message>
        <source>Choose Turn Card</source>
        <translation>Choisir la carte turn</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Aléatoire</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>%1 can&apos;t be dealt here.</source>
        <translation>Impossible de distribuer %1 ici.</translation>
    </message>
    <message>
        <source>Arrow keys and Return choose a card, or type it: 7c.</source>
        <translation>Choisir une carte avec les flèches et Entrée, ou la saisir&#xa0;: 7c.</translation>
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
        <translation>Effacer les stats «&#xa0;Contre la solution&#xa0;»</translation>
    </message>
    <message>
        <source>Clear all Play vs. Solution statistics (today + total)?</source>
        <translation>Effacer toutes les statistiques «&#xa0;Contre la solution&#xa0;» (jour + total)&#x202f;?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
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
        <translation>EV&#xa0;:</translation>
    </message>
</context>
<context>
    <name>ComputeCard</name>
    <message>
        <source>Compute</source>
        <translation>Exécution</translation>
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
        <translation>Précision</translation>
    </message>
    <message>
        <source>The solver computes in Float32, whatever is chosen here.</source>
        <translation>Le solver calcule en Float32, quel que soit ce choix.</translation>
    </message>
</context>
<context>
    <name>ConfigurationCard</name>
    <message>
        <source>flop</source>
        <translation>au flop</translation>
    </message>
    <message>
        <source>turn</source>
        <translation>à la turn</translation>
    </message>
    <message>
        <source>river</source>
        <translation>à la river</translation>
    </message>
    <message>
        <source>OOP: don&apos;t donk on %1</source>
        <translation>OOP&#xa0;: pas de donk %1</translation>
    </message>
    <message>
        <source>OOP: add all-in on %1</source>
        <translation>OOP&#xa0;: ajouter all-in %1</translation>
    </message>
    <message>
        <source>IP: add all-in on %1</source>
        <translation>IP&#xa0;: ajouter all-in %1</translation>
    </message>
    <message>
        <source>OOP: add all-in if jam &lt; %1% pot</source>
        <translation>OOP&#xa0;: ajouter all-in si jam &lt; %1% du pot</translation>
    </message>
    <message>
        <source>IP: add all-in if jam &lt; %1% pot</source>
        <translation>IP&#xa0;: ajouter all-in si jam &lt; %1% du pot</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configuration</translation>
    </message>
    <message>
        <source>Street</source>
        <translation>Street</translation>
    </message>
    <message>
        <source>Pot / Stack</source>
        <translation>Pot / stack</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Objectif</translation>
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
        <translation>Tailles des mises</translation>
    </message>
    <message>
        <source>F %1/%2 • T %3/%4 • R %5/%6</source>
        <translation>F %1/%2 • T %3/%4 • R %5/%6</translation>
    </message>
    <message>
        <source>Options enabled</source>
        <translation>Options actives</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Solving...</source>
        <translation>Calcul en cours…</translation>
    </message>
    <message>
        <source>Start Solve</source>
        <translation>Lancer le calcul</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>View Results →</source>
        <translation>Voir les résultats →</translation>
    </message>
</context>
<context>
    <name>CustomActions</name>
    <message>
        <source>Are you sure you want to delete this folder?</source>
        <translation>Voulez-vous vraiment supprimer ce dossier&#x202f;?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this range?</source>
        <translation>Voulez-vous vraiment supprimer cette range&#x202f;?</translation>
    </message>
    <message>
        <source>This will also delete %1 range(s). This cannot be undone.</source>
        <translation>Les ranges du dossier seront aussi supprimées (nombre&#xa0;: %1). Cette action est irréversible.</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>Cette action est irréversible.</translation>
    </message>
    <message>
        <source>Save current range…</source>
        <translation>Enregistrer la range…</translation>
    </message>
    <message>
        <source>Import range…</source>
        <translation>Importer une range…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Ajouter un dossier…</translation>
    </message>
    <message>
        <source>Delete selected…</source>
        <translation>Supprimer la sélection…</translation>
    </message>
    <message>
        <source>Save OOP range</source>
        <translation>Enregistrer la range OOP</translation>
    </message>
    <message>
        <source>Save IP range</source>
        <translation>Enregistrer la range IP</translation>
    </message>
    <message>
        <source>Name this range:</source>
        <translation>Nom de la range&#xa0;:</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB (default)</source>
        <translation>p.&#xa0;ex.&#xa0;BTN vs BB (par défaut)</translation>
    </message>
    <message>
        <source>Add folder (OOP)</source>
        <translation>Ajouter un dossier (OOP)</translation>
    </message>
    <message>
        <source>Add folder (IP)</source>
        <translation>Ajouter un dossier (IP)</translation>
    </message>
    <message>
        <source>Folder name:</source>
        <translation>Nom du dossier&#xa0;:</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB</source>
        <translation>p.&#xa0;ex.&#xa0;BTN vs BB</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Delete range</source>
        <translation>Supprimer la range</translation>
    </message>
</context>
<context>
    <name>DeleteDialog</name>
    <message>
        <source>This cannot be undone.</source>
        <translation>Cette action est irréversible.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>DeveloperActions</name>
    <message>
        <source>Override</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Export standard…</source>
        <translation>Exporter les standard…</translation>
    </message>
    <message>
        <source>Export population…</source>
        <translation>Exporter la population…</translation>
    </message>
    <message>
        <source>Clear overrides…</source>
        <translation>Annuler les remplacements…</translation>
    </message>
    <message>
        <source>Export Standard Ranges</source>
        <translation>Exporter les ranges standard</translation>
    </message>
    <message>
        <source>Export Population Ranges</source>
        <translation>Exporter les ranges de population</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Clear standard overrides</source>
        <translation>Annuler les remplacements standard</translation>
    </message>
    <message>
        <source>Clear population overrides</source>
        <translation>Annuler les remplacements de population</translation>
    </message>
    <message>
        <source>Clear all locally overridden standard ranges for %1?</source>
        <translation>Effacer toutes les ranges standard remplacées localement pour %1&#x202f;?</translation>
    </message>
    <message>
        <source>Clear all locally overridden population ranges for %1?</source>
        <translation>Effacer toutes les ranges de population remplacées localement pour %1&#x202f;?</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
</context>
<context>
    <name>DrillBar</name>
    <message>
        <source>Stop drill</source>
        <translation>Arrêter le drill</translation>
    </message>
    <message>
        <source>Drill spot</source>
        <translation>Driller le spot</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Bureau</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Téléchargements</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Personnel</translation>
    </message>
    <message>
        <source>There is no folder “%1”.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>There is no file “%1” here.</source>
        <translation>Il n’y a pas de fichier «&#xa0;%1&#xa0;» ici.</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Nothing to choose here.</source>
        <translation>Rien à choisir ici.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Type de fichier</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Replace file?</source>
        <translation>Remplacer le fichier&#x202f;?</translation>
    </message>
    <message>
        <source>“%1” is there already. Saving replaces what it holds.</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà. L’enregistrement remplacera son contenu.</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>Conserver</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
</context>
<context>
    <name>FileList</name>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Folder %1</source>
        <translation>Dossier %1</translation>
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
        <translation>Paramètres de jeu</translation>
    </message>
    <message>
        <source>Starting Pot</source>
        <translation>Pot de départ</translation>
    </message>
    <message>
        <source>e.g., 100</source>
        <translation>p.&#xa0;ex.&#xa0;100</translation>
    </message>
    <message>
        <source>Effective Stack</source>
        <translation>Stack effectif</translation>
    </message>
    <message>
        <source>Rake (%)</source>
        <translation>Rake (%)</translation>
    </message>
    <message>
        <source>e.g., 5.0</source>
        <translation>p.&#xa0;ex.&#xa0;5.0</translation>
    </message>
    <message>
        <source>Rake Cap</source>
        <translation>Cap du rake</translation>
    </message>
    <message>
        <source>e.g., 0</source>
        <translation>p.&#xa0;ex.&#xa0;0</translation>
    </message>
    <message>
        <source>Target Exploitability (%)</source>
        <translation>Objectif (% du pot)</translation>
    </message>
    <message>
        <source>e.g., 0.10</source>
        <translation>p.&#xa0;ex.&#xa0;0.10</translation>
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
        <translation>Arbre de jeu</translation>
    </message>
</context>
<context>
    <name>HandBuckets</name>
    <message>
        <source>air</source>
        <translation>air</translation>
    </message>
    <message>
        <source>back door flush draw</source>
        <translation>tirage couleur backdoor</translation>
    </message>
    <message>
        <source>bottom pair</source>
        <translation>bottom paire</translation>
    </message>
    <message>
        <source>dry pair</source>
        <translation>underpaire</translation>
    </message>
    <message>
        <source>flush</source>
        <translation>couleur</translation>
    </message>
    <message>
        <source>flush draw</source>
        <translation>tirage couleur</translation>
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
        <translation>middle paire</translation>
    </message>
    <message>
        <source>missed FD</source>
        <translation>couleur ratée</translation>
    </message>
    <message>
        <source>missed OESD</source>
        <translation>bilatéral raté</translation>
    </message>
    <message>
        <source>missed gutter</source>
        <translation>gutshot raté</translation>
    </message>
    <message>
        <source>open ended straight draw</source>
        <translation>tirage quinte bilatéral</translation>
    </message>
    <message>
        <source>overpair</source>
        <translation>overpaire</translation>
    </message>
    <message>
        <source>quads</source>
        <translation>carré</translation>
    </message>
    <message>
        <source>set</source>
        <translation>set</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>quinte</translation>
    </message>
    <message>
        <source>straight flush</source>
        <translation>quinte flush</translation>
    </message>
    <message>
        <source>top pair</source>
        <translation>top paire</translation>
    </message>
    <message>
        <source>trips</source>
        <translation>trips</translation>
    </message>
    <message>
        <source>two pair</source>
        <translation>double paire</translation>
    </message>
</context>
<context>
    <name>HandDetails</name>
    <message>
        <source>Hand details</source>
        <translation>Détails de la main</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
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
        <translation>Mains</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
</context>
<context>
    <name>HandDetailsCard</name>
    <message>
        <source>Loading hand combos…</source>
        <translation>Chargement des combos…</translation>
    </message>
    <message>
        <source>No hand combos to display for this node.</source>
        <translation>Aucun combo à afficher pour ce nœud.</translation>
    </message>
    <message>
        <source>No combos match the current filters.</source>
        <translation>Aucun combo ne correspond aux filtres.</translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation>Détails des mains</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search (JJ, 56s, JcJd, ...)</source>
        <translation>Rechercher (JJ, 56s, JcJd…)</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtre&#xa0;: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
</context>
<context>
    <name>HandLog</name>
    <message>
        <source>Hand Log</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>%1 hands</source>
        <translation>Mains&#xa0;: %1</translation>
    </message>
    <message>
        <source>Hands that you finish are listed here.</source>
        <translation>Les mains terminées s’affichent ici.</translation>
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
        <translation>Parfait</translation>
    </message>
</context>
<context>
    <name>HandMatrix</name>
    <message>
        <source>Hands</source>
        <translation>Mains</translation>
    </message>
    <message>
        <source>%1, weight %2%</source>
        <translation>%1, poids %2%</translation>
    </message>
</context>
<context>
    <name>HandSummary</name>
    <message>
        <source>Winner: %1</source>
        <translation>Vainqueur&#xa0;: %1</translation>
    </message>
    <message>
        <source>Won: %1</source>
        <translation>Gagné&#xa0;: %1</translation>
    </message>
    <message>
        <source>Rake: %1</source>
        <translation>Rake&#xa0;: %1</translation>
    </message>
    <message>
        <source>EV lost: %1</source>
        <translation>EV perdue&#xa0;: %1</translation>
    </message>
    <message>
        <source>Incorrect: %1</source>
        <translation>Incorrect&#xa0;: %1</translation>
    </message>
    <message>
        <source>Correct: %1</source>
        <translation>Correct&#xa0;: %1</translation>
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
        <translation>Un solver hold’em moderne et performant</translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation>Nouveau calcul</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Ouvrir un fichier</translation>
    </message>
</context>
<context>
    <name>ImportRange</name>
    <message>
        <source>Import failed: %1</source>
        <translation>Échec de l’importation&#xa0;: %1</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>erreur inconnue</translation>
    </message>
    <message>
        <source>Import failed: file contained no recognizable hands.</source>
        <translation>Échec de l’importation&#xa0;: le fichier ne contient aucune main reconnaissable.</translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation>Importer une range</translation>
    </message>
    <message>
        <source>Range text (*.txt)</source>
        <translation>Texte de range (*.txt)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Name this range:</source>
        <translation>Nom de la range&#xa0;:</translation>
    </message>
    <message>
        <source>e.g., BTN open (custom)</source>
        <translation>p.&#xa0;ex.&#xa0;BTN open (perso)</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
</context>
<context>
    <name>LibraryColumn</name>
    <message>
        <source>No ranges yet.</source>
        <translation>Aucune range.</translation>
    </message>
</context>
<context>
    <name>LibraryRow</name>
    <message>
        <source>Open folder</source>
        <translation>Dossier ouvert</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
</context>
<context>
    <name>LicensesCard</name>
    <message>
        <source>Licenses</source>
        <translation>Licences</translation>
    </message>
    <message>
        <source>Qt Framework</source>
        <translation>Qt Framework</translation>
    </message>
    <message>
        <source>Runtime (dynamic linking)</source>
        <translation>Exécution (liaison dynamique)</translation>
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
        <translation>Les mentions de tiers et les textes des licences se trouvent dans le dossier «&#xa0;licenses&#xa0;», à côté de l’exécutable.</translation>
    </message>
    <message>
        <source>Open licenses folder</source>
        <translation>Ouvrir le dossier des licences</translation>
    </message>
    <message>
        <source>Open notices</source>
        <translation>Ouvrir les mentions</translation>
    </message>
</context>
<context>
    <name>LoadProfileDialog</name>
    <message>
        <source>Please select a profile.</source>
        <translation>Veuillez choisir un profil.</translation>
    </message>
    <message>
        <source>Load Settings Profile</source>
        <translation>Charger un profil de paramètres</translation>
    </message>
    <message>
        <source>Choose a saved profile:</source>
        <translation>Choisir un profil enregistré&#xa0;:</translation>
    </message>
    <message>
        <source>No saved profiles yet.</source>
        <translation>Aucun profil enregistré.</translation>
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
        <source>Load</source>
        <translation>Charger</translation>
    </message>
    <message>
        <source>Delete settings profile</source>
        <translation>Supprimer le profil de paramètres</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this saved profile?</source>
        <translation>Voulez-vous vraiment supprimer ce profil enregistré&#x202f;?</translation>
    </message>
</context>
<context>
    <name>LockModeButtons</name>
    <message>
        <source>Standard mode</source>
        <translation>Mode standard</translation>
    </message>
    <message>
        <source>Node-lock mode</source>
        <translation>Mode node-lock</translation>
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
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
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
        <translation>À payer</translation>
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
        <translation>Le node-locking n’est disponible que sur les nœuds de décision.</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Poids</translation>
    </message>
    <message>
        <source>0..1</source>
        <translation>0..1</translation>
    </message>
    <message>
        <source>Reset weights</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation>Recalculer</translation>
    </message>
    <message>
        <source>Tip: select an action above, then click a hand cell in the matrix to lock it.</source>
        <translation>Astuce&#xa0;: choisir une action ci-dessus, puis cliquer sur une main de la matrice pour la verrouiller.</translation>
    </message>
    <message>
        <source>Undo reset</source>
        <translation>Annuler le reset</translation>
    </message>
</context>
<context>
    <name>NodeLocks</name>
    <message>
        <source>The weight must be a number from 0 to 1</source>
        <translation>Le poids doit être un nombre de 0 à 1</translation>
    </message>
</context>
<context>
    <name>NodeView</name>
    <message>
        <source>Random river card</source>
        <translation>Carte river aléatoire</translation>
    </message>
    <message>
        <source>Random turn card</source>
        <translation>Carte turn aléatoire</translation>
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
        <translation>Saisir un nombre de %1 à %2 (décimales&#xa0;: %3 au plus).</translation>
    </message>
    <message>
        <source>Enter a whole number from %1 to %2.</source>
        <translation>Saisir un nombre entier de %1 à %2.</translation>
    </message>
</context>
<context>
    <name>PlayActionButton</name>
    <message>
        <source>Key %1</source>
        <translation>Touche %1</translation>
    </message>
</context>
<context>
    <name>PlayPanel</name>
    <message>
        <source>Play vs. Solution</source>
        <translation>Contre la solution</translation>
    </message>
    <message>
        <source>Role: %1</source>
        <translation>Rôle&#xa0;: %1</translation>
    </message>
    <message>
        <source>Choose a role to start</source>
        <translation>Choisir un rôle pour commencer</translation>
    </message>
    <message>
        <source>No hands can be dealt here. Solve the spot again to play it.</source>
        <translation>Impossible de distribuer des mains ici. Recalculer le spot pour le jouer.</translation>
    </message>
    <message>
        <source>Hand Log</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Hand details</source>
        <translation>Détails de la main</translation>
    </message>
    <message>
        <source>Choose a hand in the log.</source>
        <translation>Choisir une main dans l’historique.</translation>
    </message>
</context>
<context>
    <name>PlayPrompt</name>
    <message>
        <source>%1 loses %2 EV. Best: %3</source>
        <translation>%1 perd %2 d’EV. Mieux&#xa0;: %3</translation>
    </message>
    <message>
        <source>Perfect</source>
        <translation>Parfait</translation>
    </message>
    <message>
        <source>Another hand</source>
        <translation>Autre main</translation>
    </message>
</context>
<context>
    <name>PlaySeat</name>
    <message>
        <source>%1: no cards</source>
        <translation>%1&#xa0;: pas de cartes</translation>
    </message>
    <message>
        <source>%1: opponent&apos;s cards, face down</source>
        <translation>%1&#xa0;: cartes de l’adversaire, cachées</translation>
    </message>
    <message>
        <source>Stack: %1</source>
        <translation>Stack&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>PlaySession</name>
    <message>
        <source>Wrong — best: %1 (EV -%2)</source>
        <translation>Faux – mieux&#xa0;: %1 (EV -%2)</translation>
    </message>
    <message>
        <source>Correct</source>
        <translation>Correct</translation>
    </message>
</context>
<context>
    <name>PlayTable</name>
    <message>
        <source>Table</source>
        <translation>Table</translation>
    </message>
    <message>
        <source>Dealer button</source>
        <translation>Bouton dealer</translation>
    </message>
    <message>
        <source>Pot: %1</source>
        <translation>Pot&#xa0;: %1</translation>
    </message>
    <message>
        <source>Click Turn/River to change</source>
        <translation>Cliquer sur turn/river pour changer</translation>
    </message>
    <message>
        <source>OOP action: %1</source>
        <translation>Action OOP&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>PlayingCard</name>
    <message>
        <source>Face-down card</source>
        <translation>Carte face cachée</translation>
    </message>
    <message>
        <source>Empty card slot</source>
        <translation>Emplacement vide</translation>
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
        <translation>Itération %1 | exploitabilité=%2</translation>
    </message>
    <message>
        <source>Ready to solve</source>
        <translation>Prêt à calculer</translation>
    </message>
    <message>
        <source>Finalizing…</source>
        <translation>Finalisation…</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Solver converged — finalizing results…</source>
        <translation>Convergence atteinte – finalisation des résultats…</translation>
    </message>
    <message>
        <source>Window %1/%2</source>
        <translation>Intervalle %1/%2</translation>
    </message>
    <message>
        <source>Iterations: %1</source>
        <translation>Itérations&#xa0;: %1</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Indicateurs</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <translation>Écoulé</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Restant</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>it/s</source>
        <translation>it/s</translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation>Exploitabilité</translation>
    </message>
    <message>
        <source>Measuring...</source>
        <translation>Mesure…</translation>
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
        <translation>Projet Velmora (*.velmoraproj)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Enregistrer le projet</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Ouvrir un projet</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>erreur inconnue</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>ProjectHeader</name>
    <message>
        <source>Project Setup</source>
        <translation>Configuration du projet</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Setup Required</source>
        <translation>À compléter</translation>
    </message>
    <message>
        <source>Solve RAM: %1</source>
        <translation>RAM requise&#xa0;: %1</translation>
    </message>
    <message>
        <source>Available RAM: %1</source>
        <translation>RAM disponible&#xa0;: %1</translation>
    </message>
    <message>
        <source>Continue to Solve →</source>
        <translation>Passer au calcul →</translation>
    </message>
    <message>
        <source>Solve RAM: being estimated…</source>
        <translation>RAM requise&#xa0;: estimation…</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Take back the last change (Ctrl+Z)</source>
        <translation>Annuler la dernière modification (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Bring back what was undone (Ctrl+Shift+Z)</source>
        <translation>Rétablir ce qui a été annulé (Ctrl+Maj+Z)</translation>
    </message>
</context>
<context>
    <name>QuestionDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>QuickActionsCard</name>
    <message>
        <source>Quick Actions</source>
        <translation>Actions rapides</translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation>Nouveau calcul</translation>
    </message>
    <message>
        <source>Configure board, ranges, tree</source>
        <translation>Choisir board, ranges, arbre</translation>
    </message>
    <message>
        <source>Quick Solve</source>
        <translation>Calcul rapide</translation>
    </message>
    <message>
        <source>Use default settings</source>
        <translation>Avec les paramètres par défaut</translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation>Importer une range</translation>
    </message>
    <message>
        <source>Load from file</source>
        <translation>Charger depuis un fichier</translation>
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
        <translation>Vider</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Poids</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>%1 combos (%2%)</source>
        <translation>Combos&#xa0;: %1 (%2%)</translation>
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
        <translation>Mains&#xa0;: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>p.&#xa0;ex.&#xa0;AA, KK, AKs, QQ+ ou 50%</translation>
    </message>
</context>
<context>
    <name>RangeLibraries</name>
    <message>
        <source>Standard Ranges</source>
        <translation>Ranges standard</translation>
    </message>
    <message>
        <source>Population Ranges</source>
        <translation>Ranges de population</translation>
    </message>
    <message>
        <source>Custom Ranges</source>
        <translation>Ranges personnelles</translation>
    </message>
    <message>
        <source>Please enter a name.</source>
        <translation>Veuillez saisir un nom.</translation>
    </message>
    <message>
        <source>No range content to import.</source>
        <translation>Aucune range à importer.</translation>
    </message>
    <message>
        <source>Import failed.</source>
        <translation>Échec de l’importation.</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Échec de l’exportation&#xa0;: %1</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>erreur inconnue</translation>
    </message>
    <message>
        <source>Failed to load bundled standard presets (resource file missing/empty).</source>
        <translation>Impossible de charger les ranges standard fournies (fichier de ressources absent ou vide).</translation>
    </message>
    <message>
        <source>Failed to load bundled presets: </source>
        <translation>Impossible de charger les ranges fournies&#xa0;: </translation>
    </message>
</context>
<context>
    <name>RangeTextField</name>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>p.&#xa0;ex.&#xa0;AA, KK, AKs, QQ+ ou 50%</translation>
    </message>
</context>
<context>
    <name>RecentRunsCard</name>
    <message>
        <source>Recent Runs</source>
        <translation>Calculs récents</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>No runs yet — click Start Solve to record a run here.</source>
        <translation>Aucun calcul pour l’instant – cliquer sur «&#xa0;Lancer le calcul&#xa0;» pour en voir un ici.</translation>
    </message>
</context>
<context>
    <name>ResultNotices</name>
    <message>
        <source>The last solve was cancelled. These are the results of the solve before.</source>
        <translation>Le dernier calcul a été annulé. Ces résultats sont ceux du calcul précédent.</translation>
    </message>
    <message>
        <source>The last solve was not started: %1. These are the results of the solve before.</source>
        <translation>Le dernier calcul n’a pas été lancé&#xa0;: %1. Ces résultats sont ceux du calcul précédent.</translation>
    </message>
    <message>
        <source>The last solve failed: %1. These are the results of the solve before.</source>
        <translation>Le dernier calcul a échoué&#xa0;: %1. Ces résultats sont ceux du calcul précédent.</translation>
    </message>
    <message>
        <source>Solving. These are the results of the solve before, until the new ones are there. %1</source>
        <translation>Calcul en cours. En attendant les nouveaux résultats, ceux du calcul précédent restent affichés. %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Figures of this node are missing: %1</source>
        <translation>Des valeurs de ce nœud manquent&#xa0;: %1</translation>
    </message>
    <message>
        <source>The node locks (%1) are not solved yet. At their nodes the grid, the buckets and the hands show a preview; all other figures are those from before.</source>
        <translation>Les node-locks (%1) ne sont pas encore pris en compte dans le calcul. À leurs nœuds, la matrice, les catégories et les mains montrent un aperçu&#x202f;; toutes les autres valeurs sont les précédentes.</translation>
    </message>
    <message>
        <source>The node locks of this result were removed. It still shows the solve with them.</source>
        <translation>Les node-locks de ce résultat ont été retirés. Il montre encore le calcul fait avec eux.</translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation>Recalculer</translation>
    </message>
    <message>
        <source>The node locks keep the exploitability from falling any further. The solve ended above its target.</source>
        <translation>Les node-locks empêchent l’exploitabilité de baisser davantage. Le calcul s’est terminé au-dessus de son objectif.</translation>
    </message>
    <message>
        <source>Setup has changed since this solve</source>
        <translation>«&#xa0;Projet&#xa0;» a changé depuis ce calcul</translation>
    </message>
    <message>
        <source>Solve again</source>
        <translation>Relancer le calcul</translation>
    </message>
    <message>
        <source>Take back the setup of this result</source>
        <translation>Rétablir le projet de ce résultat</translation>
    </message>
</context>
<context>
    <name>ResultsHeader</name>
    <message>
        <source>Strategy View</source>
        <translation>Vue stratégie</translation>
    </message>
    <message>
        <source>%1 to act</source>
        <translation>À %1 de parler</translation>
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
        <translation>Exploitabilité</translation>
    </message>
    <message>
        <source>Range view</source>
        <translation>Vue des ranges</translation>
    </message>
    <message>
        <source>Play vs solution</source>
        <translation>Contre la solution</translation>
    </message>
</context>
<context>
    <name>RoleChoice</name>
    <message>
        <source>Play as OOP</source>
        <translation>Jouer OOP</translation>
    </message>
    <message>
        <source>Play as both</source>
        <translation>Jouer les deux</translation>
    </message>
    <message>
        <source>Play as IP</source>
        <translation>Jouer IP</translation>
    </message>
</context>
<context>
    <name>RunHistory</name>
    <message>
        <source>Target %1% (≈ %2) • Threads %3</source>
        <translation>Objectif %1% (≈ %2) • Threads %3</translation>
    </message>
    <message>
        <source>At most %1 iterations</source>
        <translation>Itérations&#xa0;: %1 au plus</translation>
    </message>
    <message>
        <source>%1 iterations</source>
        <translation>Itérations&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>RunRow</name>
    <message>
        <source>Running</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annulé</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échoué</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Refusé</translation>
    </message>
</context>
<context>
    <name>SeatLibrary</name>
    <message>
        <source>Please enter a name.</source>
        <translation>Veuillez saisir un nom.</translation>
    </message>
    <message>
        <source>Current range is empty.</source>
        <translation>La range actuelle est vide.</translation>
    </message>
    <message>
        <source>Please enter a folder name.</source>
        <translation>Veuillez saisir un nom de dossier.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Valeurs par défaut</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Enregistrer les paramètres</translation>
    </message>
</context>
<context>
    <name>SettingsProfilesCard</name>
    <message>
        <source>Load settings</source>
        <translation>Charger profil</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Enregistrer profil</translation>
    </message>
    <message>
        <source>Please enter a name.</source>
        <translation>Veuillez saisir un nom.</translation>
    </message>
    <message>
        <source>Save Settings Profile</source>
        <translation>Enregistrer un profil de paramètres</translation>
    </message>
    <message>
        <source>Profile name:</source>
        <translation>Nom du profil&#xa0;:</translation>
    </message>
    <message>
        <source>e.g., 100bb rake-free (fast)</source>
        <translation>p.&#xa0;ex.&#xa0;100bb sans rake (rapide)</translation>
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
        <translation>Solver de poker</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Overview &amp; quick actions</source>
        <translation>Aperçu et actions rapides</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>Board, ranges, tree</source>
        <translation>Board, ranges, arbre</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Calcul</translation>
    </message>
    <message>
        <source>Run solver</source>
        <translation>Lancer le solver</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Browse strategies</source>
        <translation>Parcourir les stratégies</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
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
        <translation>Mises (%)</translation>
    </message>
    <message>
        <source>Raise sizes (%)</source>
        <translation>Raises (%)</translation>
    </message>
    <message>
        <source>Add All-In</source>
        <translation>Avec all-in</translation>
    </message>
    <message>
        <source>Don&apos;t donk</source>
        <translation>Pas de donk</translation>
    </message>
    <message>
        <source>Add all-in if jam less than</source>
        <translation>All-in si jam inférieur à</translation>
    </message>
    <message>
        <source>e.g. 30</source>
        <translation>p.&#xa0;ex.&#xa0;30</translation>
    </message>
    <message>
        <source>% pot</source>
        <translation>% du pot</translation>
    </message>
</context>
<context>
    <name>SolveActivityCard</name>
    <message>
        <source>Solve Activity</source>
        <translation>Activité de calcul</translation>
    </message>
    <message>
        <source>Last 52 weeks</source>
        <translation>52 dernières semaines</translation>
    </message>
</context>
<context>
    <name>SolveFollower</name>
    <message>
        <source>Iteration %1 | exploitability=%2</source>
        <translation>Itération %1 | exploitabilité=%2</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Erreur&#xa0;: %1</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Done: node locks keep the exploitability from falling</source>
        <translation>Terminé&#xa0;: les node-locks empêchent l’exploitabilité de baisser</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annulé</translation>
    </message>
    <message>
        <source>Building the cards and the tree...</source>
        <translation>Construction des cartes et de l’arbre…</translation>
    </message>
    <message>
        <source>Preparing the solver...</source>
        <translation>Préparation du solver…</translation>
    </message>
    <message>
        <source>Starting the solver...</source>
        <translation>Lancement du solver…</translation>
    </message>
    <message>
        <source>Computing the results...</source>
        <translation>Calcul des résultats…</translation>
    </message>
    <message>
        <source>Collecting the tree...</source>
        <translation>Assemblage de l’arbre…</translation>
    </message>
</context>
<context>
    <name>SolvePage</name>
    <message>
        <source>Solve</source>
        <translation>Calcul</translation>
    </message>
    <message>
        <source>Run the CFR solver and monitor progress in real-time.</source>
        <translation>Lancer le solver CFR et suivre sa progression en temps réel.</translation>
    </message>
    <message>
        <source>Finalizing</source>
        <translation>Finalisation</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
</context>
<context>
    <name>StatusChip</name>
    <message>
        <source>Finalizing</source>
        <translation>Finalisation</translation>
    </message>
    <message>
        <source>Solving</source>
        <translation>Calcul en cours</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
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
        <translation>Stratégie par main</translation>
    </message>
    <message>
        <source>Strategy by Hand (preview, not solved yet)</source>
        <translation>Stratégie par main (aperçu, pas encore calculé)</translation>
    </message>
</context>
<context>
    <name>StrategyViews</name>
    <message>
        <source>Buckets</source>
        <translation>Catégories</translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation>Détails des mains</translation>
    </message>
</context>
<context>
    <name>SystemCard</name>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Moteur</translation>
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
        <translation>Disponibles&#xa0;: %1</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>%1 (%2 free)</source>
        <translation>%1 (libre&#xa0;: %2)</translation>
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
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>Start a new project (or load one) from Home to enable Project</source>
        <translation>Créer (ou charger) un projet depuis «&#xa0;Accueil&#xa0;» pour activer «&#xa0;Projet&#xa0;»</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Calcul</translation>
    </message>
    <message>
        <source>Fill board, ranges, and sizings to enable Solve</source>
        <translation>Renseigner board, ranges et sizings pour activer «&#xa0;Calcul&#xa0;»</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Run a solve to enable Results</source>
        <translation>Lancer un calcul pour activer «&#xa0;Résultats&#xa0;»</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>%1. Still missing: %2.</source>
        <translation>%1. Il manque encore&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>TrainerStatsCard</name>
    <message>
        <source>Play vs. Solution</source>
        <translation>Contre la solution</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Clear Play vs. Solution Stats</source>
        <translation>Effacer les stats «&#xa0;Contre la solution&#xa0;»</translation>
    </message>
    <message>
        <source>Hands (Today / Total)</source>
        <translation>Mains (jour / total)</translation>
    </message>
    <message>
        <source>Accuracy (Today / Total)</source>
        <translation>Réussite (jour / total)</translation>
    </message>
    <message>
        <source>Avg EV Loss (Today / Total)</source>
        <translation>Perte EV moy. (jour / total)</translation>
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
        <translation>Actions possibles</translation>
    </message>
    <message>
        <source>%1 options</source>
        <translation>Options&#xa0;: %1</translation>
    </message>
    <message>
        <source>Deal %1</source>
        <translation>Carte %1</translation>
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
        <translation>Carte</translation>
    </message>
    <message>
        <source>Pot: %1</source>
        <translation>Pot&#xa0;: %1</translation>
    </message>
    <message>
        <source>Freq: %1%</source>
        <translation>Fréq.&#xa0;: %1%</translation>
    </message>
    <message>
        <source>EV: %1%2</source>
        <translation>EV&#xa0;: %1%2</translation>
    </message>
    <message>
        <source>Collapse %1</source>
        <translation>Réduire %1</translation>
    </message>
    <message>
        <source>Expand %1</source>
        <translation>Développer %1</translation>
    </message>
</context>
<context>
    <name>TreeWalk</name>
    <message>
        <source>Root</source>
        <translation>Racine</translation>
    </message>
</context>
<context>
    <name>UpdateManager</name>
    <message>
        <source>Update URL is not configured.</source>
        <translation>L’URL de mise à jour n’est pas configurée.</translation>
    </message>
    <message>
        <source>Update check failed: %1</source>
        <translation>Échec de la recherche de mise à jour&#xa0;: %1</translation>
    </message>
    <message>
        <source>Invalid update response (HTTP %1).</source>
        <translation>Réponse du serveur de mise à jour non valide (HTTP %1).</translation>
    </message>
    <message>
        <source>No download URL available.</source>
        <translation>Aucune URL de téléchargement disponible.</translation>
    </message>
</context>
<context>
    <name>UpdatesCard</name>
    <message>
        <source>Last checked: %1</source>
        <translation>Dernière vérification&#xa0;: %1</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>Current version: %1</source>
        <translation>Version actuelle&#xa0;: %1</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnue</translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation>Mise à jour disponible&#xa0;: %1</translation>
    </message>
    <message>
        <source>Checking...</source>
        <translation>Vérification…</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Rechercher des mises à jour</translation>
    </message>
    <message>
        <source>Download update</source>
        <translation>Télécharger la mise à jour</translation>
    </message>
</context>
<context>
    <name>card_names</name>
    <message>
        <source>spades</source>
        <translation>pique</translation>
    </message>
    <message>
        <source>hearts</source>
        <translation>cœur</translation>
    </message>
    <message>
        <source>diamonds</source>
        <translation>carreau</translation>
    </message>
    <message>
        <source>clubs</source>
        <translation>trèfle</translation>
    </message>
    <message>
        <source>Ace</source>
        <translation>As</translation>
    </message>
    <message>
        <source>King</source>
        <translation>Roi</translation>
    </message>
    <message>
        <source>Queen</source>
        <translation>Dame</translation>
    </message>
    <message>
        <source>Jack</source>
        <translation>Valet</translation>
    </message>
    <message>
        <source>Ten</source>
        <translation>Dix</translation>
    </message>
    <message>
        <source>Nine</source>
        <translation>Neuf</translation>
    </message>
    <message>
        <source>Eight</source>
        <translation>Huit</translation>
    </message>
    <message>
        <source>Seven</source>
        <translation>Sept</translation>
    </message>
    <message>
        <source>Six</source>
        <translation>Six</translation>
    </message>
    <message>
        <source>Five</source>
        <translation>Cinq</translation>
    </message>
    <message>
        <source>Four</source>
        <translation>Quatre</translation>
    </message>
    <message>
        <source>Three</source>
        <translation>Trois</translation>
    </message>
    <message>
        <source>Two</source>
        <translation>Deux</translation>
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
        <translation>Sans rake</translation>
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
        <translation>Regs plus faibles</translation>
    </message>
    <message>
        <source>Tighter reg</source>
        <translation>Reg plus tight</translation>
    </message>
    <message>
        <source>Looser reg</source>
        <translation>Reg plus loose</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autres</translation>
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
        <translation>Passif</translation>
    </message>
    <message>
        <source>Passive tight</source>
        <translation>Passif tight</translation>
    </message>
    <message>
        <source>Passive neutral</source>
        <translation>Passif neutre</translation>
    </message>
    <message>
        <source>Passive loose</source>
        <translation>Passif loose</translation>
    </message>
    <message>
        <source>Extreme loose</source>
        <translation>Ultra-loose</translation>
    </message>
    <message>
        <source>Loose aggressive</source>
        <translation>Loose agressif</translation>
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
        <translation>lun.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>mar.</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>mer.</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>jeu.</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>ven.</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>sam.</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>dim.</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>janv.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>févr.</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>avr.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>juin</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>juil.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>août</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>sept.</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>oct.</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov.</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>déc.</translation>
    </message>
    <message>
        <source>%1 (future)</source>
        <translation>%1 (à venir)</translation>
    </message>
    <message>
        <source>Solves: %1</source>
        <translation>Calculs&#xa0;: %1</translation>
    </message>
    <message>
        <source>Avg iters: %1</source>
        <translation>Itér. moy.&#xa0;: %1</translation>
    </message>
    <message>
        <source>Avg expl: %1</source>
        <translation>Expl. moy.&#xa0;: %1</translation>
    </message>
</context>
</TS>

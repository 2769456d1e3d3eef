<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
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
        <translation>Frequência das ações</translation>
    </message>
</context>
<context>
    <name>ActivityGrid</name>
    <message>
        <source>Solve Activity</source>
        <translation>Atividade de cálculo</translation>
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
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Iniciando…</translation>
    </message>
    <message>
        <source>No previous solve config (solve once first)</source>
        <translation>Nenhuma configuração anterior (faça primeiro um cálculo)</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Cancelando…</translation>
    </message>
    <message>
        <source>Another file is still being saved or opened</source>
        <translation>Outro arquivo ainda está sendo salvo ou aberto</translation>
    </message>
    <message>
        <source>Loaded project (%1 strategy nodes, %2 combo nodes)</source>
        <translation>Projeto carregado (nós de estratégia: %1, nós de combos: %2)</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <translation>Não foi possível abrir o arquivo</translation>
    </message>
    <message>
        <source>Unrecognized project format</source>
        <translation>Formato de projeto não reconhecido</translation>
    </message>
    <message>
        <source>Unsupported project version</source>
        <translation>Versão de projeto não suportada</translation>
    </message>
    <message>
        <source>Invalid JSON</source>
        <translation>JSON inválido</translation>
    </message>
    <message>
        <source>Failed to save file: %1</source>
        <translation>Não foi possível salvar o arquivo: %1</translation>
    </message>
    <message>
        <source>Failed to open file: %1</source>
        <translation>Não foi possível abrir o arquivo: %1</translation>
    </message>
    <message>
        <source>Estimating the memory...</source>
        <translation>Estimando a memória…</translation>
    </message>
    <message>
        <source>Not started: the solve needs the memory of the result on view</source>
        <translation>Não iniciado: o cálculo precisa da memória do resultado exibido</translation>
    </message>
    <message>
        <source>Not enough RAM to solve: %1 needed, %2 available</source>
        <translation>RAM insuficiente para o cálculo: necessário %1, disponível %2</translation>
    </message>
    <message>
        <source>Waiting for the cancelled solve to stop...</source>
        <translation>Aguardando o cálculo cancelado parar…</translation>
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
        <translation>Não há memória suficiente para as respostas deste nó</translation>
    </message>
    <message>
        <source>The board of the project is impossible: %1</source>
        <translation>O board do projeto é impossível: %1</translation>
    </message>
    <message>
        <source>Invalid JSON at byte %1, in %2</source>
        <translation>JSON inválido no byte %1, em %2</translation>
    </message>
    <message>
        <source>Not ready: enter a valid board first</source>
        <translation>Não está pronto: informe primeiro um board válido</translation>
    </message>
    <message>
        <source>Not ready: select at least one hand in both ranges</source>
        <translation>Não está pronto: selecione ao menos uma mão nos dois ranges</translation>
    </message>
    <message>
        <source>Not ready: fill out both OOP and IP sizing</source>
        <translation>Não está pronto: preencha os tamanhos de OOP e de IP</translation>
    </message>
    <message>
        <source>Solve failed: %1</source>
        <translation>O cálculo falhou: %1</translation>
    </message>
    <message>
        <source>Board %1 | iters %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5</source>
        <translation>Board %1 | iter. %2 | expl.≈%3 | EV(oop)=%4 EV(ip)=%5</translation>
    </message>
    <message>
        <source>Invalid/non-local file URL</source>
        <translation>URL de arquivo inválida ou não local</translation>
    </message>
    <message>
        <source>Empty file path</source>
        <translation>Caminho do arquivo vazio</translation>
    </message>
</context>
<context>
    <name>AppShell</name>
    <message>
        <source>Start a new project (or load one) from Home to enable Project</source>
        <translation>Crie (ou carregue) um projeto em “Início” para liberar “Projeto”</translation>
    </message>
    <message>
        <source>The memory that this solve takes could not be estimated.</source>
        <translation>Não foi possível estimar a memória que este cálculo exige.</translation>
    </message>
    <message>
        <source>Not enough memory: this solve takes %1, and %2 is available.</source>
        <translation>Memória insuficiente: este cálculo exige %1, e há %2 disponíveis.</translation>
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
        <translation>Novo spot</translation>
    </message>
    <message>
        <source>Node locks</source>
        <translation>Node-locks</translation>
    </message>
    <message>
        <source>Node locks (%1) are set on the tree of this spot. Apply them in this solve?</source>
        <translation>A árvore deste spot tem node-locks (%1). Aplicá-los neste cálculo?</translation>
    </message>
    <message>
        <source>Solve without locks</source>
        <translation>Calcular sem node-locks</translation>
    </message>
    <message>
        <source>Apply the locks</source>
        <translation>Aplicar node-locks</translation>
    </message>
    <message>
        <source>A solve is running, and it will be cancelled.</source>
        <translation>Há um cálculo em andamento, e ele será cancelado.</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Alterações não salvas</translation>
    </message>
    <message>
        <source>The spot or its results are not saved.</source>
        <translation>O spot ou seus resultados não foram salvos.</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Não salvar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Cancel the solve</source>
        <translation>Cancelar o cálculo</translation>
    </message>
    <message>
        <source>Take back your spot?</source>
        <translation>Recuperar o seu spot?</translation>
    </message>
    <message>
        <source>Dunmarrow did not close properly. The spot that you were editing was kept on %1.</source>
        <translation>O Dunmarrow não foi fechado corretamente. O spot que você estava editando foi guardado (%1).</translation>
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
        <translation>Memória insuficiente para ambos</translation>
    </message>
    <message>
        <source>This solve needs %1, and %2 are available. It can start if the solver of the result on view is dropped: of that result only what was looked at so far stays.</source>
        <translation>Este cálculo exige %1, e há %2 disponíveis. Ele pode começar se o solver do resultado exibido for descartado: desse resultado ficará apenas o que já foi consultado.</translation>
    </message>
    <message>
        <source>Save first</source>
        <translation>Salvar antes</translation>
    </message>
    <message>
        <source>Solve without saving</source>
        <translation>Calcular sem salvar</translation>
    </message>
    <message>
        <source>%1 pot %2</source>
        <translation>%1 pote %2</translation>
    </message>
    <message>
        <source>Saved %1 at %2</source>
        <translation>%1 salvo às %2</translation>
    </message>
</context>
<context>
    <name>AppearanceCard</name>
    <message>
        <source>Appearance</source>
        <translation>Aparência</translation>
    </message>
    <message>
        <source>Dark Mode</source>
        <translation>Modo escuro</translation>
    </message>
    <message>
        <source>Use dark color scheme throughout the interface</source>
        <translation>Usar cores escuras em toda a interface</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Change the app language (takes effect immediately)</source>
        <translation>Idioma do programa (a mudança é imediata)</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Padrão do sistema</translation>
    </message>
    <message>
        <source>Accent Color</source>
        <translation>Cor de destaque</translation>
    </message>
    <message>
        <source>Customize the app highlight color (buttons, accents, clubs/check).</source>
        <translation>Cor de realce do programa (botões, destaques, paus/check).</translation>
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
        <translation>Roxo</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Dourado</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Laranja</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Vermelho</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
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
        <translation>Pré-flop</translation>
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
        <translation>Categorias</translation>
    </message>
    <message>
        <source>%1 shown</source>
        <translation>Em exibição: %1</translation>
    </message>
</context>
<context>
    <name>BusyLabel</name>
    <message>
        <source>Loading…</source>
        <translation>Carregando…</translation>
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
        <translation>Escolha a carta</translation>
    </message>
    <message>
        <source>River card</source>
        <translation>Carta do river</translation>
    </message>
    <message>
        <source>Turn card</source>
        <translation>Carta do turn</translation>
    </message>
    <message>
        <source>Flop card</source>
        <translation>Carta do flop</translation>
    </message>
    <message>
        <source>Clear card</source>
        <translation>Remover carta</translation>
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
        <translation>Já usada</translation>
    </message>
</context>
<context>
    <name>ChancePicker</name>
    <message>
        <source>Choose River Card</source>
        <translation>Escolha a carta do river</translation>
    </message>
    <message>
        <source>Choose Turn Card</source>
        <translation>Escolha a carta do turn</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Aleatória</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>%1 can&apos;t be dealt here.</source>
        <translation>%1 não pode ser distribuída aqui.</translation>
    </message>
    <message>
        <source>Arrow keys and Return choose a card, or type it: 7c.</source>
        <translation>Escolha uma carta com as setas e Enter ou digite-a: 7c.</translation>
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
        <translation>Limpar estatísticas do jogo vs solver</translation>
    </message>
    <message>
        <source>Clear all Play vs. Solution statistics (today + total)?</source>
        <translation>Limpar todas as estatísticas do jogo vs solver (hoje + total)?</translation>
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
        <translation>Processamento</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Threads</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Máx.</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Precisão</translation>
    </message>
    <message>
        <source>The solver computes in Float32, whatever is chosen here.</source>
        <translation>O solver calcula em Float32, seja qual for a escolha aqui.</translation>
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
        <translation>OOP: sem donk no %1</translation>
    </message>
    <message>
        <source>OOP: add all-in on %1</source>
        <translation>OOP: adicionar all-in no %1</translation>
    </message>
    <message>
        <source>IP: add all-in on %1</source>
        <translation>IP: adicionar all-in no %1</translation>
    </message>
    <message>
        <source>OOP: add all-in if jam &lt; %1% pot</source>
        <translation>OOP: adicionar all-in se &lt; %1% do pote</translation>
    </message>
    <message>
        <source>IP: add all-in if jam &lt; %1% pot</source>
        <translation>IP: adicionar all-in se &lt; %1% do pote</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configuração</translation>
    </message>
    <message>
        <source>Street</source>
        <translation>Street</translation>
    </message>
    <message>
        <source>Pot / Stack</source>
        <translation>Pote / stack</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Alvo</translation>
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
        <translation>Sizing dos bets</translation>
    </message>
    <message>
        <source>F %1/%2 • T %3/%4 • R %5/%6</source>
        <translation>F %1/%2 • T %3/%4 • R %5/%6</translation>
    </message>
    <message>
        <source>Options enabled</source>
        <translation>Opções ativas</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhuma</translation>
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
        <translation>Excluir esta pasta?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this range?</source>
        <translation>Excluir este range?</translation>
    </message>
    <message>
        <source>This will also delete %1 range(s). This cannot be undone.</source>
        <translation>Ranges que também serão excluídos: %1. Esta ação não pode ser desfeita.</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>Esta ação não pode ser desfeita.</translation>
    </message>
    <message>
        <source>Save current range…</source>
        <translation>Salvar range atual…</translation>
    </message>
    <message>
        <source>Import range…</source>
        <translation>Importar range…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Adicionar pasta…</translation>
    </message>
    <message>
        <source>Delete selected…</source>
        <translation>Excluir seleção…</translation>
    </message>
    <message>
        <source>Save OOP range</source>
        <translation>Salvar range OOP</translation>
    </message>
    <message>
        <source>Save IP range</source>
        <translation>Salvar range IP</translation>
    </message>
    <message>
        <source>Name this range:</source>
        <translation>Nome do range:</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB (default)</source>
        <translation>ex.: BTN vs BB (padrão)</translation>
    </message>
    <message>
        <source>Add folder (OOP)</source>
        <translation>Adicionar pasta (OOP)</translation>
    </message>
    <message>
        <source>Add folder (IP)</source>
        <translation>Adicionar pasta (IP)</translation>
    </message>
    <message>
        <source>Folder name:</source>
        <translation>Nome da pasta:</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB</source>
        <translation>ex.: BTN vs BB</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Delete range</source>
        <translation>Excluir</translation>
    </message>
</context>
<context>
    <name>DeleteDialog</name>
    <message>
        <source>This cannot be undone.</source>
        <translation>Esta ação não pode ser desfeita.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
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
        <translation>Substituir</translation>
    </message>
    <message>
        <source>Export standard…</source>
        <translation>Exportar padrão…</translation>
    </message>
    <message>
        <source>Export population…</source>
        <translation>Exportar população…</translation>
    </message>
    <message>
        <source>Clear overrides…</source>
        <translation>Limpar substituições…</translation>
    </message>
    <message>
        <source>Export Standard Ranges</source>
        <translation>Exportar ranges padrão</translation>
    </message>
    <message>
        <source>Export Population Ranges</source>
        <translation>Exportar ranges da população</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>Clear standard overrides</source>
        <translation>Limpar substituições: padrão</translation>
    </message>
    <message>
        <source>Clear population overrides</source>
        <translation>Limpar substituições: população</translation>
    </message>
    <message>
        <source>Clear all locally overridden standard ranges for %1?</source>
        <translation>Limpar todas as substituições locais dos ranges padrão de %1?</translation>
    </message>
    <message>
        <source>Clear all locally overridden population ranges for %1?</source>
        <translation>Limpar todas as substituições locais dos ranges da população de %1?</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
</context>
<context>
    <name>DrillBar</name>
    <message>
        <source>Stop drill</source>
        <translation>Parar treino</translation>
    </message>
    <message>
        <source>Drill spot</source>
        <translation>Treinar spot</translation>
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
        <translation>Desktop</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Downloads</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pessoal</translation>
    </message>
    <message>
        <source>There is no folder “%1”.</source>
        <translation>A pasta “%1” não existe.</translation>
    </message>
    <message>
        <source>There is no file “%1” here.</source>
        <translation>Não há nenhum arquivo “%1” aqui.</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Acima</translation>
    </message>
    <message>
        <source>Nothing to choose here.</source>
        <translation>Não há nada para escolher aqui.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome do arquivo</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de arquivo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Replace file?</source>
        <translation>Substituir o arquivo?</translation>
    </message>
    <message>
        <source>“%1” is there already. Saving replaces what it holds.</source>
        <translation>“%1” já existe. Ao salvar, o conteúdo será substituído.</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>Manter</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Substituir</translation>
    </message>
</context>
<context>
    <name>FileList</name>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>Folder %1</source>
        <translation>Pasta %1</translation>
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
        <translation>Parâmetros do jogo</translation>
    </message>
    <message>
        <source>Starting Pot</source>
        <translation>Pote inicial</translation>
    </message>
    <message>
        <source>e.g., 100</source>
        <translation>ex.: 100</translation>
    </message>
    <message>
        <source>Effective Stack</source>
        <translation>Stack efetivo</translation>
    </message>
    <message>
        <source>Rake (%)</source>
        <translation>Rake (%)</translation>
    </message>
    <message>
        <source>e.g., 5.0</source>
        <translation>ex.: 5.0</translation>
    </message>
    <message>
        <source>Rake Cap</source>
        <translation>Cap do rake</translation>
    </message>
    <message>
        <source>e.g., 0</source>
        <translation>ex.: 0</translation>
    </message>
    <message>
        <source>Target Exploitability (%)</source>
        <translation>Alvo (% do pote)</translation>
    </message>
    <message>
        <source>e.g., 0.10</source>
        <translation>ex.: 0.10</translation>
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
        <translation>Árvore do jogo</translation>
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
        <translation>flush</translation>
    </message>
    <message>
        <source>flush draw</source>
        <translation>flush draw</translation>
    </message>
    <message>
        <source>full house</source>
        <translation>full house</translation>
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
        <translation>FD perdido</translation>
    </message>
    <message>
        <source>missed OESD</source>
        <translation>OESD perdido</translation>
    </message>
    <message>
        <source>missed gutter</source>
        <translation>gutshot perdido</translation>
    </message>
    <message>
        <source>open ended straight draw</source>
        <translation>OESD</translation>
    </message>
    <message>
        <source>overpair</source>
        <translation>overpair</translation>
    </message>
    <message>
        <source>quads</source>
        <translation>quadra</translation>
    </message>
    <message>
        <source>set</source>
        <translation>set</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>sequência</translation>
    </message>
    <message>
        <source>straight flush</source>
        <translation>straight flush</translation>
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
        <translation>dois pares</translation>
    </message>
</context>
<context>
    <name>HandDetails</name>
    <message>
        <source>Hand details</source>
        <translation>Detalhes da mão</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
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
        <translation>Mãos</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
</context>
<context>
    <name>HandDetailsCard</name>
    <message>
        <source>Loading hand combos…</source>
        <translation>Carregando combos…</translation>
    </message>
    <message>
        <source>No hand combos to display for this node.</source>
        <translation>Nenhum combo para mostrar neste nó.</translation>
    </message>
    <message>
        <source>No combos match the current filters.</source>
        <translation>Nenhum combo corresponde aos filtros.</translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation>Detalhes das mãos</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search (JJ, 56s, JcJd, ...)</source>
        <translation>Buscar (JJ, 56s, JcJd, …)</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtro: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
</context>
<context>
    <name>HandLog</name>
    <message>
        <source>Hand Log</source>
        <translation>Registro de mãos</translation>
    </message>
    <message>
        <source>%1 hands</source>
        <translation>Mãos: %1</translation>
    </message>
    <message>
        <source>Hands that you finish are listed here.</source>
        <translation>As mãos concluídas aparecem aqui.</translation>
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
        <translation>Perfeito</translation>
    </message>
</context>
<context>
    <name>HandMatrix</name>
    <message>
        <source>Hands</source>
        <translation>Mãos</translation>
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
        <translation>Vencedor: %1</translation>
    </message>
    <message>
        <source>Won: %1</source>
        <translation>Ganho: %1</translation>
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
        <translation>Errado: %1</translation>
    </message>
    <message>
        <source>Correct: %1</source>
        <translation>Correto: %1</translation>
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
        <translation>Um solver de hold’em moderno e de alto desempenho</translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation>Novo cálculo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Abrir arquivo</translation>
    </message>
</context>
<context>
    <name>ImportRange</name>
    <message>
        <source>Import failed: %1</source>
        <translation>Falha na importação: %1</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>erro desconhecido</translation>
    </message>
    <message>
        <source>Import failed: file contained no recognizable hands.</source>
        <translation>Falha na importação: nenhuma mão reconhecida no arquivo.</translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation>Importar range</translation>
    </message>
    <message>
        <source>Range text (*.txt)</source>
        <translation>Texto do range (*.txt)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>Name this range:</source>
        <translation>Nome do range:</translation>
    </message>
    <message>
        <source>e.g., BTN open (custom)</source>
        <translation>ex.: BTN open (próprio)</translation>
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
        <translation>Ainda sem ranges.</translation>
    </message>
</context>
<context>
    <name>LibraryRow</name>
    <message>
        <source>Open folder</source>
        <translation>Pasta aberta</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
</context>
<context>
    <name>LicensesCard</name>
    <message>
        <source>Licenses</source>
        <translation>Licenças</translation>
    </message>
    <message>
        <source>Qt Framework</source>
        <translation>Qt Framework</translation>
    </message>
    <message>
        <source>Runtime (dynamic linking)</source>
        <translation>Runtime (vinculação dinâmica)</translation>
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
        <translation>Os avisos de terceiros e os textos das licenças estão na pasta “licenses”, ao lado do executável.</translation>
    </message>
    <message>
        <source>Open licenses folder</source>
        <translation>Abrir pasta de licenças</translation>
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
        <translation>Selecione um perfil.</translation>
    </message>
    <message>
        <source>Load Settings Profile</source>
        <translation>Carregar perfil de configurações</translation>
    </message>
    <message>
        <source>Choose a saved profile:</source>
        <translation>Escolha um perfil salvo:</translation>
    </message>
    <message>
        <source>No saved profiles yet.</source>
        <translation>Ainda não há perfis salvos.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Carregar</translation>
    </message>
    <message>
        <source>Delete settings profile</source>
        <translation>Excluir perfil de configurações</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this saved profile?</source>
        <translation>Excluir este perfil salvo?</translation>
    </message>
</context>
<context>
    <name>LockModeButtons</name>
    <message>
        <source>Standard mode</source>
        <translation>Modo padrão</translation>
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
        <translation>Salvar</translation>
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
        <translation>Pote</translation>
    </message>
    <message>
        <source>Stack (%1)</source>
        <translation>Stack (%1)</translation>
    </message>
    <message>
        <source>To call</source>
        <translation>Para pagar</translation>
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
        <translation>O node-lock só está disponível em nós de decisão.</translation>
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
        <translation>Limpar pesos</translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation>Recalcular</translation>
    </message>
    <message>
        <source>Tip: select an action above, then click a hand cell in the matrix to lock it.</source>
        <translation>Dica: selecione uma ação acima e depois clique em uma mão na matriz para travá-la.</translation>
    </message>
    <message>
        <source>Undo reset</source>
        <translation>Desfazer limpeza</translation>
    </message>
</context>
<context>
    <name>NodeLocks</name>
    <message>
        <source>The weight must be a number from 0 to 1</source>
        <translation>O peso deve ser um número de 0 a 1</translation>
    </message>
</context>
<context>
    <name>NodeView</name>
    <message>
        <source>Random river card</source>
        <translation>Carta aleatória no river</translation>
    </message>
    <message>
        <source>Random turn card</source>
        <translation>Carta aleatória no turn</translation>
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
        <translation>Digite um número de %1 a %2 (casas decimais: no máximo %3).</translation>
    </message>
    <message>
        <source>Enter a whole number from %1 to %2.</source>
        <translation>Digite um número inteiro de %1 a %2.</translation>
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
        <translation>Jogar vs solver</translation>
    </message>
    <message>
        <source>Role: %1</source>
        <translation>Papel: %1</translation>
    </message>
    <message>
        <source>Choose a role to start</source>
        <translation>Escolha um papel para começar</translation>
    </message>
    <message>
        <source>No hands can be dealt here. Solve the spot again to play it.</source>
        <translation>Não é possível distribuir mãos aqui. Recalcule o spot para jogá-lo.</translation>
    </message>
    <message>
        <source>Hand Log</source>
        <translation>Registro de mãos</translation>
    </message>
    <message>
        <source>Hand details</source>
        <translation>Detalhes da mão</translation>
    </message>
    <message>
        <source>Choose a hand in the log.</source>
        <translation>Escolha uma mão no registro.</translation>
    </message>
</context>
<context>
    <name>PlayPrompt</name>
    <message>
        <source>%1 loses %2 EV. Best: %3</source>
        <translation>%1 perde %2 EV. Melhor: %3</translation>
    </message>
    <message>
        <source>Perfect</source>
        <translation>Perfeito</translation>
    </message>
    <message>
        <source>Another hand</source>
        <translation>Outra mão</translation>
    </message>
</context>
<context>
    <name>PlaySeat</name>
    <message>
        <source>%1: no cards</source>
        <translation>%1: sem cartas</translation>
    </message>
    <message>
        <source>%1: opponent&apos;s cards, face down</source>
        <translation>%1: cartas do oponente, viradas para baixo</translation>
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
        <translation>Errado — melhor: %1 (EV -%2)</translation>
    </message>
    <message>
        <source>Correct</source>
        <translation>Correto</translation>
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
        <translation>Botão do dealer</translation>
    </message>
    <message>
        <source>Pot: %1</source>
        <translation>Pote: %1</translation>
    </message>
    <message>
        <source>Click Turn/River to change</source>
        <translation>Clique no turn/river para mudar</translation>
    </message>
    <message>
        <source>OOP action: %1</source>
        <translation>Ação do OOP: %1</translation>
    </message>
</context>
<context>
    <name>PlayingCard</name>
    <message>
        <source>Face-down card</source>
        <translation>Carta virada para baixo</translation>
    </message>
    <message>
        <source>Empty card slot</source>
        <translation>Espaço de carta vazio</translation>
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
        <translation>Iteração %1 | explorabilidade: %2</translation>
    </message>
    <message>
        <source>Ready to solve</source>
        <translation>Pronto para calcular</translation>
    </message>
    <message>
        <source>Finalizing…</source>
        <translation>Finalizando…</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Solver converged — finalizing results…</source>
        <translation>O solver convergiu — finalizando os resultados…</translation>
    </message>
    <message>
        <source>Window %1/%2</source>
        <translation>Janela %1/%2</translation>
    </message>
    <message>
        <source>Iterations: %1</source>
        <translation>Iterações: %1</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Métricas</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <translation>Decorrido</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Restante</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidade</translation>
    </message>
    <message>
        <source>it/s</source>
        <translation>it/s</translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation>Explorab.</translation>
    </message>
    <message>
        <source>Measuring...</source>
        <translation>Medindo…</translation>
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
        <translation>Projeto Velmora (*.velmoraproj)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Salvar projeto</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Abrir projeto</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>erro desconhecido</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
</context>
<context>
    <name>ProjectHeader</name>
    <message>
        <source>Project Setup</source>
        <translation>Configuração do projeto</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Setup Required</source>
        <translation>A configurar</translation>
    </message>
    <message>
        <source>Solve RAM: %1</source>
        <translation>RAM para o cálculo: %1</translation>
    </message>
    <message>
        <source>Available RAM: %1</source>
        <translation>RAM disponível: %1</translation>
    </message>
    <message>
        <source>Continue to Solve →</source>
        <translation>Ir para o cálculo →</translation>
    </message>
    <message>
        <source>Solve RAM: being estimated…</source>
        <translation>RAM para o cálculo: estimando…</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Take back the last change (Ctrl+Z)</source>
        <translation>Desfazer a última alteração (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>Bring back what was undone (Ctrl+Shift+Z)</source>
        <translation>Refazer o que foi desfeito (Ctrl+Shift+Z)</translation>
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
        <translation>Ações rápidas</translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation>Novo cálculo</translation>
    </message>
    <message>
        <source>Configure board, ranges, tree</source>
        <translation>Definir board, ranges, árvore</translation>
    </message>
    <message>
        <source>Quick Solve</source>
        <translation>Cálculo rápido</translation>
    </message>
    <message>
        <source>Use default settings</source>
        <translation>Usar configurações padrão</translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation>Importar range</translation>
    </message>
    <message>
        <source>Load from file</source>
        <translation>Carregar de um arquivo</translation>
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
        <translation>Limpar</translation>
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
        <translation>Range</translation>
    </message>
    <message>
        <source>%1 hands</source>
        <translation>Mãos: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>ex.: AA, KK, AKs, QQ+ ou 50%</translation>
    </message>
</context>
<context>
    <name>RangeLibraries</name>
    <message>
        <source>Standard Ranges</source>
        <translation>Ranges padrão</translation>
    </message>
    <message>
        <source>Population Ranges</source>
        <translation>Ranges da população</translation>
    </message>
    <message>
        <source>Custom Ranges</source>
        <translation>Meus ranges</translation>
    </message>
    <message>
        <source>Please enter a name.</source>
        <translation>Digite um nome.</translation>
    </message>
    <message>
        <source>No range content to import.</source>
        <translation>Nenhum range para importar.</translation>
    </message>
    <message>
        <source>Import failed.</source>
        <translation>Falha na importação.</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Falha na exportação: %1</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>erro desconhecido</translation>
    </message>
    <message>
        <source>Failed to load bundled standard presets (resource file missing/empty).</source>
        <translation>Não foi possível carregar os ranges padrão incluídos (arquivo de recursos ausente ou vazio).</translation>
    </message>
    <message>
        <source>Failed to load bundled presets: </source>
        <translation>Não foi possível carregar os ranges incluídos: </translation>
    </message>
</context>
<context>
    <name>RangeTextField</name>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>ex.: AA, KK, AKs, QQ+ ou 50%</translation>
    </message>
</context>
<context>
    <name>RecentRunsCard</name>
    <message>
        <source>Recent Runs</source>
        <translation>Cálculos recentes</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>No runs yet — click Start Solve to record a run here.</source>
        <translation>Ainda sem cálculos — clique em “Iniciar cálculo” para registrar um aqui.</translation>
    </message>
</context>
<context>
    <name>ResultNotices</name>
    <message>
        <source>The last solve was cancelled. These are the results of the solve before.</source>
        <translation>O último cálculo foi cancelado. Estes são os resultados do cálculo anterior.</translation>
    </message>
    <message>
        <source>The last solve was not started: %1. These are the results of the solve before.</source>
        <translation>O último cálculo não foi iniciado: %1. Estes são os resultados do cálculo anterior.</translation>
    </message>
    <message>
        <source>The last solve failed: %1. These are the results of the solve before.</source>
        <translation>O último cálculo falhou: %1. Estes são os resultados do cálculo anterior.</translation>
    </message>
    <message>
        <source>Solving. These are the results of the solve before, until the new ones are there. %1</source>
        <translation>Calculando. Até saírem os novos resultados, aparecem aqui os do cálculo anterior. %1</translation>
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
        <translation>Faltam valores deste nó: %1</translation>
    </message>
    <message>
        <source>The node locks (%1) are not solved yet. At their nodes the grid, the buckets and the hands show a preview; all other figures are those from before.</source>
        <translation>Os node-locks (%1) ainda não foram calculados. Nos nós deles, a matriz, as categorias e as mãos mostram uma prévia; todos os outros valores são os anteriores.</translation>
    </message>
    <message>
        <source>The node locks of this result were removed. It still shows the solve with them.</source>
        <translation>Os node-locks deste resultado foram removidos. Ele ainda mostra o cálculo feito com eles.</translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation>Recalcular</translation>
    </message>
    <message>
        <source>The node locks keep the exploitability from falling any further. The solve ended above its target.</source>
        <translation>Os node-locks impedem que a explorabilidade caia mais. O cálculo terminou acima do alvo.</translation>
    </message>
    <message>
        <source>Setup has changed since this solve</source>
        <translation>“Projeto” mudou desde este cálculo</translation>
    </message>
    <message>
        <source>Solve again</source>
        <translation>Calcular de novo</translation>
    </message>
    <message>
        <source>Take back the setup of this result</source>
        <translation>Recuperar o projeto deste resultado</translation>
    </message>
</context>
<context>
    <name>ResultsHeader</name>
    <message>
        <source>Strategy View</source>
        <translation>Estratégia</translation>
    </message>
    <message>
        <source>%1 to act</source>
        <translation>Vez do %1</translation>
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
        <translation>Explorab.</translation>
    </message>
    <message>
        <source>Range view</source>
        <translation>Ver range</translation>
    </message>
    <message>
        <source>Play vs solution</source>
        <translation>Jogar vs solver</translation>
    </message>
</context>
<context>
    <name>RoleChoice</name>
    <message>
        <source>Play as OOP</source>
        <translation>Jogar como OOP</translation>
    </message>
    <message>
        <source>Play as both</source>
        <translation>Jogar com ambos</translation>
    </message>
    <message>
        <source>Play as IP</source>
        <translation>Jogar como IP</translation>
    </message>
</context>
<context>
    <name>RunHistory</name>
    <message>
        <source>Target %1% (≈ %2) • Threads %3</source>
        <translation>Alvo: %1% (≈ %2) • Threads: %3</translation>
    </message>
    <message>
        <source>At most %1 iterations</source>
        <translation>Iterações: no máximo %1</translation>
    </message>
    <message>
        <source>%1 iterations</source>
        <translation>Iterações: %1</translation>
    </message>
</context>
<context>
    <name>RunRow</name>
    <message>
        <source>Running</source>
        <translation>Em andamento</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Recusado</translation>
    </message>
</context>
<context>
    <name>SeatLibrary</name>
    <message>
        <source>Please enter a name.</source>
        <translation>Digite um nome.</translation>
    </message>
    <message>
        <source>Current range is empty.</source>
        <translation>O range atual está vazio.</translation>
    </message>
    <message>
        <source>Please enter a folder name.</source>
        <translation>Digite um nome para a pasta.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Restaurar padrões</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Salvar configurações</translation>
    </message>
</context>
<context>
    <name>SettingsProfilesCard</name>
    <message>
        <source>Load settings</source>
        <translation>Abrir perfil</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Salvar perfil</translation>
    </message>
    <message>
        <source>Please enter a name.</source>
        <translation>Digite um nome.</translation>
    </message>
    <message>
        <source>Save Settings Profile</source>
        <translation>Salvar perfil de configurações</translation>
    </message>
    <message>
        <source>Profile name:</source>
        <translation>Nome do perfil:</translation>
    </message>
    <message>
        <source>e.g., 100bb rake-free (fast)</source>
        <translation>ex.: 100bb sem rake (rápido)</translation>
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
        <translation>Início</translation>
    </message>
    <message>
        <source>Overview &amp; quick actions</source>
        <translation>Visão geral e ações rápidas</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Projeto</translation>
    </message>
    <message>
        <source>Board, ranges, tree</source>
        <translation>Board, ranges, árvore</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Cálculo</translation>
    </message>
    <message>
        <source>Run solver</source>
        <translation>Rodar o solver</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Browse strategies</source>
        <translation>Explorar estratégias</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
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
        <translation>Sizing do OOP</translation>
    </message>
    <message>
        <source>IP Sizing</source>
        <translation>Sizing do IP</translation>
    </message>
    <message>
        <source>Bet sizes (%)</source>
        <translation>Bets (%)</translation>
    </message>
    <message>
        <source>Raise sizes (%)</source>
        <translation>Raises (%)</translation>
    </message>
    <message>
        <source>Add All-In</source>
        <translation>Com all-in</translation>
    </message>
    <message>
        <source>Don&apos;t donk</source>
        <translation>Sem donk</translation>
    </message>
    <message>
        <source>Add all-in if jam less than</source>
        <translation>All-in se menor que</translation>
    </message>
    <message>
        <source>e.g. 30</source>
        <translation>ex.: 30</translation>
    </message>
    <message>
        <source>% pot</source>
        <translation>% do pote</translation>
    </message>
</context>
<context>
    <name>SolveActivityCard</name>
    <message>
        <source>Solve Activity</source>
        <translation>Atividade de cálculo</translation>
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
        <translation>Iteração %1 | explorabilidade: %2</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Erro: %1</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Done: node locks keep the exploitability from falling</source>
        <translation>Concluído: os node-locks impedem que a explorabilidade caia</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>Building the cards and the tree...</source>
        <translation>Montando as cartas e a árvore…</translation>
    </message>
    <message>
        <source>Preparing the solver...</source>
        <translation>Preparando o solver…</translation>
    </message>
    <message>
        <source>Starting the solver...</source>
        <translation>Iniciando o solver…</translation>
    </message>
    <message>
        <source>Computing the results...</source>
        <translation>Calculando os resultados…</translation>
    </message>
    <message>
        <source>Collecting the tree...</source>
        <translation>Reunindo a árvore…</translation>
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
        <translation>Rode o solver CFR e acompanhe o progresso em tempo real.</translation>
    </message>
    <message>
        <source>Finalizing</source>
        <translation>Finalizando</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Em andamento</translation>
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
        <translation>Finalizando</translation>
    </message>
    <message>
        <source>Solving</source>
        <translation>Calculando</translation>
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
        <translation>Estratégia por mão</translation>
    </message>
    <message>
        <source>Strategy by Hand (preview, not solved yet)</source>
        <translation>Estratégia por mão (prévia, ainda não calculada)</translation>
    </message>
</context>
<context>
    <name>StrategyViews</name>
    <message>
        <source>Buckets</source>
        <translation>Categorias</translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation>Detalhes das mãos</translation>
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
        <translation>Threads</translation>
    </message>
    <message>
        <source>%1 available</source>
        <translation>Disponíveis: %1</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memória</translation>
    </message>
    <message>
        <source>%1 (%2 free)</source>
        <translation>%1 (livre: %2)</translation>
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
        <translation>Início</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Projeto</translation>
    </message>
    <message>
        <source>Start a new project (or load one) from Home to enable Project</source>
        <translation>Crie (ou carregue) um projeto em “Início” para liberar “Projeto”</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Cálculo</translation>
    </message>
    <message>
        <source>Fill board, ranges, and sizings to enable Solve</source>
        <translation>Preencha board, ranges e sizings para liberar “Cálculo”</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Run a solve to enable Results</source>
        <translation>Faça um cálculo para liberar “Resultados”</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>%1. Still missing: %2.</source>
        <translation>%1. Ainda falta: %2.</translation>
    </message>
</context>
<context>
    <name>TrainerStatsCard</name>
    <message>
        <source>Play vs. Solution</source>
        <translation>Jogar vs solver</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Clear Play vs. Solution Stats</source>
        <translation>Limpar estatísticas do jogo vs solver</translation>
    </message>
    <message>
        <source>Hands (Today / Total)</source>
        <translation>Mãos (hoje/total)</translation>
    </message>
    <message>
        <source>Accuracy (Today / Total)</source>
        <translation>Acerto (hoje/total)</translation>
    </message>
    <message>
        <source>Avg EV Loss (Today / Total)</source>
        <translation>Perda EV média (hoje/total)</translation>
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
        <translation>Ações disponíveis</translation>
    </message>
    <message>
        <source>%1 options</source>
        <translation>Opções: %1</translation>
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
        <translation>Fim</translation>
    </message>
    <message>
        <source>Deal</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>Pot: %1</source>
        <translation>Pote: %1</translation>
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
        <translation>Recolher %1</translation>
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
        <translation>Raiz</translation>
    </message>
</context>
<context>
    <name>UpdateManager</name>
    <message>
        <source>Update URL is not configured.</source>
        <translation>O URL de atualização não está configurado.</translation>
    </message>
    <message>
        <source>Update check failed: %1</source>
        <translation>Falha ao verificar atualizações: %1</translation>
    </message>
    <message>
        <source>Invalid update response (HTTP %1).</source>
        <translation>Resposta de atualização inválida (HTTP %1).</translation>
    </message>
    <message>
        <source>No download URL available.</source>
        <translation>Nenhum URL de download disponível.</translation>
    </message>
</context>
<context>
    <name>UpdatesCard</name>
    <message>
        <source>Last checked: %1</source>
        <translation>Última verificação: %1</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Atualizações</translation>
    </message>
    <message>
        <source>Current version: %1</source>
        <translation>Versão atual: %1</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>desconhecida</translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation>Atualização disponível: %1</translation>
    </message>
    <message>
        <source>Checking...</source>
        <translation>Verificando…</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Verificar atualizações</translation>
    </message>
    <message>
        <source>Download update</source>
        <translation>Baixar atualização</translation>
    </message>
</context>
<context>
    <name>card_names</name>
    <message>
        <source>spades</source>
        <translation>espadas</translation>
    </message>
    <message>
        <source>hearts</source>
        <translation>copas</translation>
    </message>
    <message>
        <source>diamonds</source>
        <translation>ouros</translation>
    </message>
    <message>
        <source>clubs</source>
        <translation>paus</translation>
    </message>
    <message>
        <source>Ace</source>
        <translation>Ás</translation>
    </message>
    <message>
        <source>King</source>
        <translation>Rei</translation>
    </message>
    <message>
        <source>Queen</source>
        <translation>Dama</translation>
    </message>
    <message>
        <source>Jack</source>
        <translation>Valete</translation>
    </message>
    <message>
        <source>Ten</source>
        <translation>Dez</translation>
    </message>
    <message>
        <source>Nine</source>
        <translation>Nove</translation>
    </message>
    <message>
        <source>Eight</source>
        <translation>Oito</translation>
    </message>
    <message>
        <source>Seven</source>
        <translation>Sete</translation>
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
        <translation>Quatro</translation>
    </message>
    <message>
        <source>Three</source>
        <translation>Três</translation>
    </message>
    <message>
        <source>Two</source>
        <translation>Dois</translation>
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
        <translation>Sem rake</translation>
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
        <translation>Regs mais fracos</translation>
    </message>
    <message>
        <source>Tighter reg</source>
        <translation>Reg mais tight</translation>
    </message>
    <message>
        <source>Looser reg</source>
        <translation>Reg mais loose</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Outros</translation>
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
        <translation>Loose extremo</translation>
    </message>
    <message>
        <source>Loose aggressive</source>
        <translation>Loose agressivo</translation>
    </message>
    <message>
        <source>Standard LAG</source>
        <translation>LAG padrão</translation>
    </message>
    <message>
        <source>Maniac</source>
        <translation>Maníaco</translation>
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
        <translation>seg</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>ter</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>qua</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>qui</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>sex</translation>
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
        <translation>jan</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>fev</translation>
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
        <translation>mai</translation>
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
        <translation>set</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>out</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>dez</translation>
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
        <translation>Iter. médias: %1</translation>
    </message>
    <message>
        <source>Avg expl: %1</source>
        <translation>Explorab. média: %1</translation>
    </message>
</context>
</TS>

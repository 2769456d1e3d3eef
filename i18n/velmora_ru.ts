<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en_US">
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
        <translation>%1 комбо</translation>
    </message>
    <message>
        <source>%1% equity</source>
        <translation>%1% эквити</translation>
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
        <translation>Частоты действий</translation>
    </message>
</context>
<context>
    <name>ActivityGrid</name>
    <message>
        <source>Solve Activity</source>
        <translation>Активность расчётов</translation>
    </message>
    <message>
        <source>Last 52 weeks</source>
        <translation>Последние 52 недели</translation>
    </message>
</context>
<context>
    <name>AppController</name>
    <message>
        <source>Ready</source>
        <translation>Готов</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Запуск…</translation>
    </message>
    <message>
        <source>No previous solve config (solve once first)</source>
        <translation>Нет прежней конфигурации (сначала выполните расчёт)</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Отмена…</translation>
    </message>
    <message>
        <source>Another file is still being saved or opened</source>
        <translation>Ещё сохраняется или открывается другой файл</translation>
    </message>
    <message>
        <source>Loaded project (%1 strategy nodes, %2 combo nodes)</source>
        <translation>Проект загружен (узлы стратегии: %1, узлы комбо: %2)</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 ГБ</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <translation>Не удалось открыть файл</translation>
    </message>
    <message>
        <source>Unrecognized project format</source>
        <translation>Неизвестный формат проекта</translation>
    </message>
    <message>
        <source>Unsupported project version</source>
        <translation>Версия проекта не поддерживается</translation>
    </message>
    <message>
        <source>Invalid JSON</source>
        <translation>Неверный JSON</translation>
    </message>
    <message>
        <source>Failed to save file: %1</source>
        <translation>Не удалось сохранить файл: %1</translation>
    </message>
    <message>
        <source>Failed to open file: %1</source>
        <translation>Не удалось открыть файл: %1</translation>
    </message>
    <message>
        <source>Estimating the memory...</source>
        <translation>Оценка памяти…</translation>
    </message>
    <message>
        <source>Not started: the solve needs the memory of the result on view</source>
        <translation>Не запущен: расчёту нужна память, занятая показанным результатом</translation>
    </message>
    <message>
        <source>Not enough RAM to solve: %1 needed, %2 available</source>
        <translation>Недостаточно RAM для расчёта: нужно %1, доступно %2</translation>
    </message>
    <message>
        <source>Waiting for the cancelled solve to stop...</source>
        <translation>Ожидание остановки отменённого расчёта…</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Отменён</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 МБ</translation>
    </message>
    <message>
        <source>There is not enough memory for the answers of this node</source>
        <translation>Недостаточно памяти для ответов этого узла</translation>
    </message>
    <message>
        <source>The board of the project is impossible: %1</source>
        <translation>Борд проекта невозможен: %1</translation>
    </message>
    <message>
        <source>Invalid JSON at byte %1, in %2</source>
        <translation>Неверный JSON в байте %1, в %2</translation>
    </message>
    <message>
        <source>Not ready: enter a valid board first</source>
        <translation>Не готово: сначала введите корректный борд</translation>
    </message>
    <message>
        <source>Not ready: select at least one hand in both ranges</source>
        <translation>Не готово: выберите хотя бы одну руку в обоих диапазонах</translation>
    </message>
    <message>
        <source>Not ready: fill out both OOP and IP sizing</source>
        <translation>Не готово: заполните размеры ставок OOP и IP</translation>
    </message>
    <message>
        <source>Solve failed: %1</source>
        <translation>Расчёт не удался: %1</translation>
    </message>
    <message>
        <source>Board %1 | iters %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5</source>
        <translation>Борд %1 | итер. %2 | экспл.≈%3 | EV(oop)=%4 EV(ip)=%5</translation>
    </message>
    <message>
        <source>Invalid/non-local file URL</source>
        <translation>Недопустимый или нелокальный URL файла</translation>
    </message>
    <message>
        <source>Empty file path</source>
        <translation>Пустой путь к файлу</translation>
    </message>
</context>
<context>
    <name>AppShell</name>
    <message>
        <source>Start a new project (or load one) from Home to enable Project</source>
        <translation>Создайте или загрузите проект на вкладке «Главная», чтобы открыть «Проект»</translation>
    </message>
    <message>
        <source>The memory that this solve takes could not be estimated.</source>
        <translation>Не удалось оценить, сколько памяти нужно для этого расчёта.</translation>
    </message>
    <message>
        <source>Not enough memory: this solve takes %1, and %2 is available.</source>
        <translation>Недостаточно памяти: этому расчёту нужно %1, а доступно %2.</translation>
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
        <translation>Новый спот</translation>
    </message>
    <message>
        <source>Node locks</source>
        <translation>Нодлоки</translation>
    </message>
    <message>
        <source>Node locks (%1) are set on the tree of this spot. Apply them in this solve?</source>
        <translation>В дереве этого спота заданы нодлоки (%1). Применить их в этом расчёте?</translation>
    </message>
    <message>
        <source>Solve without locks</source>
        <translation>Считать без нодлоков</translation>
    </message>
    <message>
        <source>Apply the locks</source>
        <translation>Применить нодлоки</translation>
    </message>
    <message>
        <source>A solve is running, and it will be cancelled.</source>
        <translation>Идёт расчёт, он будет отменён.</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Изменения не сохранены</translation>
    </message>
    <message>
        <source>The spot or its results are not saved.</source>
        <translation>Спот или его результаты не сохранены.</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Не сохранять</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Cancel the solve</source>
        <translation>Отменить расчёт</translation>
    </message>
    <message>
        <source>Take back your spot?</source>
        <translation>Восстановить ваш спот?</translation>
    </message>
    <message>
        <source>Dunmarrow did not close properly. The spot that you were editing was kept on %1.</source>
        <translation>Dunmarrow завершил работу некорректно. Спот, который вы редактировали, сохранён (%1).</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Take it back</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Not enough memory for both</source>
        <translation>Памяти не хватает на оба</translation>
    </message>
    <message>
        <source>This solve needs %1, and %2 are available. It can start if the solver of the result on view is dropped: of that result only what was looked at so far stays.</source>
        <translation>Этому расчёту нужно %1, а доступно %2. Его можно начать, если выгрузить солвер показанного результата: от этого результата останется только то, что уже просмотрено.</translation>
    </message>
    <message>
        <source>Save first</source>
        <translation>Сначала сохранить</translation>
    </message>
    <message>
        <source>Solve without saving</source>
        <translation>Считать без сохранения</translation>
    </message>
    <message>
        <source>%1 pot %2</source>
        <translation>%1 банк %2</translation>
    </message>
    <message>
        <source>Saved %1 at %2</source>
        <translation>%1: сохранено в %2</translation>
    </message>
</context>
<context>
    <name>AppearanceCard</name>
    <message>
        <source>Appearance</source>
        <translation>Внешний вид</translation>
    </message>
    <message>
        <source>Dark Mode</source>
        <translation>Тёмная тема</translation>
    </message>
    <message>
        <source>Use dark color scheme throughout the interface</source>
        <translation>Тёмные цвета во всех окнах программы</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Change the app language (takes effect immediately)</source>
        <translation>Язык программы (меняется сразу)</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Как в системе</translation>
    </message>
    <message>
        <source>Accent Color</source>
        <translation>Цвет акцента</translation>
    </message>
    <message>
        <source>Customize the app highlight color (buttons, accents, clubs/check).</source>
        <translation>Цвет выделения в программе (кнопки, акценты, трефы/check).</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Зелёный</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Синий</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Фиолетовый</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Золотой</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Оранжевый</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Красный</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
</context>
<context>
    <name>BoardCard</name>
    <message>
        <source>Board</source>
        <translation>Борд</translation>
    </message>
</context>
<context>
    <name>BoardDisplay</name>
    <message>
        <source>River</source>
        <translation>Ривер</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Тёрн</translation>
    </message>
    <message>
        <source>Flop</source>
        <translation>Флоп</translation>
    </message>
    <message>
        <source>Preflop</source>
        <translation>Префлоп</translation>
    </message>
    <message>
        <source>Board</source>
        <translation>Борд</translation>
    </message>
</context>
<context>
    <name>BucketRow</name>
    <message>
        <source>%1 combos</source>
        <translation>%1 комбо</translation>
    </message>
</context>
<context>
    <name>BucketsCard</name>
    <message>
        <source>Buckets</source>
        <translation>Категории</translation>
    </message>
    <message>
        <source>%1 shown</source>
        <translation>Показано: %1</translation>
    </message>
</context>
<context>
    <name>BusyLabel</name>
    <message>
        <source>Loading…</source>
        <translation>Загрузка…</translation>
    </message>
</context>
<context>
    <name>CardPicker</name>
    <message>
        <source>Cards</source>
        <translation>Карты</translation>
    </message>
</context>
<context>
    <name>CardPickerDialog</name>
    <message>
        <source>Select card</source>
        <translation>Выберите карту</translation>
    </message>
    <message>
        <source>River card</source>
        <translation>Карта ривера</translation>
    </message>
    <message>
        <source>Turn card</source>
        <translation>Карта тёрна</translation>
    </message>
    <message>
        <source>Flop card</source>
        <translation>Карта флопа</translation>
    </message>
    <message>
        <source>Clear card</source>
        <translation>Убрать карту</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>CardPickerTile</name>
    <message>
        <source>Already used</source>
        <translation>Уже занята</translation>
    </message>
</context>
<context>
    <name>ChancePicker</name>
    <message>
        <source>Choose River Card</source>
        <translation>Выберите карту ривера</translation>
    </message>
    <message>
        <source>Choose Turn Card</source>
        <translation>Выберите карту тёрна</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Случайная</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>%1 can&apos;t be dealt here.</source>
        <translation>%1 здесь раздать нельзя.</translation>
    </message>
    <message>
        <source>Arrow keys and Return choose a card, or type it: 7c.</source>
        <translation>Выберите карту стрелками и клавишей Enter или введите её: 7c.</translation>
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
        <translation>Сброс статистики игры с солвером</translation>
    </message>
    <message>
        <source>Clear all Play vs. Solution statistics (today + total)?</source>
        <translation>Сбросить всю статистику игры с солвером (за сегодня и за всё время)?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
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
        <translation>Вычисления</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Потоки</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Макс.</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Точность</translation>
    </message>
    <message>
        <source>The solver computes in Float32, whatever is chosen here.</source>
        <translation>Солвер считает в Float32 независимо от этого выбора.</translation>
    </message>
</context>
<context>
    <name>ConfigurationCard</name>
    <message>
        <source>flop</source>
        <translation>флопе</translation>
    </message>
    <message>
        <source>turn</source>
        <translation>тёрне</translation>
    </message>
    <message>
        <source>river</source>
        <translation>ривере</translation>
    </message>
    <message>
        <source>OOP: don&apos;t donk on %1</source>
        <translation>OOP: без донк-бета на %1</translation>
    </message>
    <message>
        <source>OOP: add all-in on %1</source>
        <translation>OOP: добавить all-in на %1</translation>
    </message>
    <message>
        <source>IP: add all-in on %1</source>
        <translation>IP: добавить all-in на %1</translation>
    </message>
    <message>
        <source>OOP: add all-in if jam &lt; %1% pot</source>
        <translation>OOP: добавить all-in, если он &lt; %1% банка</translation>
    </message>
    <message>
        <source>IP: add all-in if jam &lt; %1% pot</source>
        <translation>IP: добавить all-in, если он &lt; %1% банка</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Конфигурация</translation>
    </message>
    <message>
        <source>Street</source>
        <translation>Улица</translation>
    </message>
    <message>
        <source>Pot / Stack</source>
        <translation>Банк / стек</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Цель</translation>
    </message>
    <message>
        <source>%1% (= %2)</source>
        <translation>%1% (= %2)</translation>
    </message>
    <message>
        <source>Rake</source>
        <translation>Рейк</translation>
    </message>
    <message>
        <source>%1% (cap %2)</source>
        <translation>%1% (кап %2)</translation>
    </message>
    <message>
        <source>Bet sizes</source>
        <translation>Сайзинги</translation>
    </message>
    <message>
        <source>F %1/%2 • T %3/%4 • R %5/%6</source>
        <translation>Ф %1/%2 • Т %3/%4 • Р %5/%6</translation>
    </message>
    <message>
        <source>Options enabled</source>
        <translation>Опции</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Управление</translation>
    </message>
    <message>
        <source>Solving...</source>
        <translation>Идёт расчёт…</translation>
    </message>
    <message>
        <source>Start Solve</source>
        <translation>Начать расчёт</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>View Results →</source>
        <translation>Результаты →</translation>
    </message>
</context>
<context>
    <name>CustomActions</name>
    <message>
        <source>Are you sure you want to delete this folder?</source>
        <translation>Удалить эту папку?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this range?</source>
        <translation>Удалить этот диапазон?</translation>
    </message>
    <message>
        <source>This will also delete %1 range(s). This cannot be undone.</source>
        <translation>Будет удалено диапазонов: %1. Отменить это нельзя.</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>Отменить это нельзя.</translation>
    </message>
    <message>
        <source>Save current range…</source>
        <translation>Сохранить диапазон…</translation>
    </message>
    <message>
        <source>Import range…</source>
        <translation>Импорт диапазона…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Добавить папку…</translation>
    </message>
    <message>
        <source>Delete selected…</source>
        <translation>Удалить выбранное…</translation>
    </message>
    <message>
        <source>Save OOP range</source>
        <translation>Сохранить диапазон OOP</translation>
    </message>
    <message>
        <source>Save IP range</source>
        <translation>Сохранить диапазон IP</translation>
    </message>
    <message>
        <source>Name this range:</source>
        <translation>Название диапазона:</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB (default)</source>
        <translation>напр. BTN vs BB (базовый)</translation>
    </message>
    <message>
        <source>Add folder (OOP)</source>
        <translation>Добавить папку (OOP)</translation>
    </message>
    <message>
        <source>Add folder (IP)</source>
        <translation>Добавить папку (IP)</translation>
    </message>
    <message>
        <source>Folder name:</source>
        <translation>Название папки:</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB</source>
        <translation>напр. BTN vs BB</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Delete range</source>
        <translation>Удаление</translation>
    </message>
</context>
<context>
    <name>DeleteDialog</name>
    <message>
        <source>This cannot be undone.</source>
        <translation>Отменить это нельзя.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>DeveloperActions</name>
    <message>
        <source>Override</source>
        <translation>Заменить</translation>
    </message>
    <message>
        <source>Export standard…</source>
        <translation>Экспорт стандартных…</translation>
    </message>
    <message>
        <source>Export population…</source>
        <translation>Экспорт поля…</translation>
    </message>
    <message>
        <source>Clear overrides…</source>
        <translation>Сбросить замены…</translation>
    </message>
    <message>
        <source>Export Standard Ranges</source>
        <translation>Экспорт стандартных диапазонов</translation>
    </message>
    <message>
        <source>Export Population Ranges</source>
        <translation>Экспорт диапазонов поля</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Все файлы (*)</translation>
    </message>
    <message>
        <source>Clear standard overrides</source>
        <translation>Сброс замен: стандартные</translation>
    </message>
    <message>
        <source>Clear population overrides</source>
        <translation>Сброс замен: поле</translation>
    </message>
    <message>
        <source>Clear all locally overridden standard ranges for %1?</source>
        <translation>Сбросить все локальные замены стандартных диапазонов для %1?</translation>
    </message>
    <message>
        <source>Clear all locally overridden population ranges for %1?</source>
        <translation>Сбросить все локальные замены диапазонов поля для %1?</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Сбросить</translation>
    </message>
</context>
<context>
    <name>DrillBar</name>
    <message>
        <source>Stop drill</source>
        <translation>Закончить отработку</translation>
    </message>
    <message>
        <source>Drill spot</source>
        <translation>Отработать спот</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>Documents</source>
        <translation>Документы</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Рабочий стол</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Загрузки</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Домашняя</translation>
    </message>
    <message>
        <source>There is no folder “%1”.</source>
        <translation>Папки «%1» не существует.</translation>
    </message>
    <message>
        <source>There is no file “%1” here.</source>
        <translation>Файла «%1» здесь нет.</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Nothing to choose here.</source>
        <translation>Здесь нечего выбрать.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Тип файла</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Replace file?</source>
        <translation>Заменить файл?</translation>
    </message>
    <message>
        <source>“%1” is there already. Saving replaces what it holds.</source>
        <translation>Файл «%1» уже существует. При сохранении его содержимое будет заменено.</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>Оставить</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Заменить</translation>
    </message>
</context>
<context>
    <name>FileList</name>
    <message>
        <source>Files</source>
        <translation>Файлы</translation>
    </message>
    <message>
        <source>Folder %1</source>
        <translation>Папка %1</translation>
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
        <translation>Параметры игры</translation>
    </message>
    <message>
        <source>Starting Pot</source>
        <translation>Начальный банк</translation>
    </message>
    <message>
        <source>e.g., 100</source>
        <translation>напр. 100</translation>
    </message>
    <message>
        <source>Effective Stack</source>
        <translation>Эффективный стек</translation>
    </message>
    <message>
        <source>Rake (%)</source>
        <translation>Рейк (%)</translation>
    </message>
    <message>
        <source>e.g., 5.0</source>
        <translation>напр. 5.0</translation>
    </message>
    <message>
        <source>Rake Cap</source>
        <translation>Кап рейка</translation>
    </message>
    <message>
        <source>e.g., 0</source>
        <translation>напр. 0</translation>
    </message>
    <message>
        <source>Target Exploitability (%)</source>
        <translation>Цель, % банка</translation>
    </message>
    <message>
        <source>e.g., 0.10</source>
        <translation>напр. 0.10</translation>
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
        <translation>Дерево игры</translation>
    </message>
</context>
<context>
    <name>HandBuckets</name>
    <message>
        <source>air</source>
        <translation>воздух</translation>
    </message>
    <message>
        <source>back door flush draw</source>
        <translation>бэкдорное флеш-дро</translation>
    </message>
    <message>
        <source>bottom pair</source>
        <translation>нижняя пара</translation>
    </message>
    <message>
        <source>dry pair</source>
        <translation>андерпара</translation>
    </message>
    <message>
        <source>flush</source>
        <translation>флеш</translation>
    </message>
    <message>
        <source>flush draw</source>
        <translation>флеш-дро</translation>
    </message>
    <message>
        <source>full house</source>
        <translation>фулл-хаус</translation>
    </message>
    <message>
        <source>gutter</source>
        <translation>гатшот</translation>
    </message>
    <message>
        <source>middle pair</source>
        <translation>средняя пара</translation>
    </message>
    <message>
        <source>missed FD</source>
        <translation>незакрытое ФД</translation>
    </message>
    <message>
        <source>missed OESD</source>
        <translation>незакрытое OESD</translation>
    </message>
    <message>
        <source>missed gutter</source>
        <translation>незакрытый гатшот</translation>
    </message>
    <message>
        <source>open ended straight draw</source>
        <translation>двустороннее стрит-дро</translation>
    </message>
    <message>
        <source>overpair</source>
        <translation>оверпара</translation>
    </message>
    <message>
        <source>quads</source>
        <translation>каре</translation>
    </message>
    <message>
        <source>set</source>
        <translation>сет</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>стрит</translation>
    </message>
    <message>
        <source>straight flush</source>
        <translation>стрит-флеш</translation>
    </message>
    <message>
        <source>top pair</source>
        <translation>топ-пара</translation>
    </message>
    <message>
        <source>trips</source>
        <translation>трипс</translation>
    </message>
    <message>
        <source>two pair</source>
        <translation>две пары</translation>
    </message>
</context>
<context>
    <name>HandDetails</name>
    <message>
        <source>Hand details</source>
        <translation>Детали раздачи</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Flop</source>
        <translation>Флоп</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Тёрн</translation>
    </message>
    <message>
        <source>River</source>
        <translation>Ривер</translation>
    </message>
    <message>
        <source>Hands</source>
        <translation>Руки</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Итог</translation>
    </message>
</context>
<context>
    <name>HandDetailsCard</name>
    <message>
        <source>Loading hand combos…</source>
        <translation>Загрузка комбо…</translation>
    </message>
    <message>
        <source>No hand combos to display for this node.</source>
        <translation>В этом узле нет комбо.</translation>
    </message>
    <message>
        <source>No combos match the current filters.</source>
        <translation>Нет комбо, подходящих под фильтры.</translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation>Руки подробно</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Search (JJ, 56s, JcJd, ...)</source>
        <translation>Поиск (JJ, 56s, JcJd, …)</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Фильтр: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Сбросить</translation>
    </message>
</context>
<context>
    <name>HandLog</name>
    <message>
        <source>Hand Log</source>
        <translation>История раздач</translation>
    </message>
    <message>
        <source>%1 hands</source>
        <translation>Раздачи: %1</translation>
    </message>
    <message>
        <source>Hands that you finish are listed here.</source>
        <translation>Здесь появятся сыгранные раздачи.</translation>
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
        <translation>Идеально</translation>
    </message>
</context>
<context>
    <name>HandMatrix</name>
    <message>
        <source>Hands</source>
        <translation>Руки</translation>
    </message>
    <message>
        <source>%1, weight %2%</source>
        <translation>%1, вес %2%</translation>
    </message>
</context>
<context>
    <name>HandSummary</name>
    <message>
        <source>Winner: %1</source>
        <translation>Победитель: %1</translation>
    </message>
    <message>
        <source>Won: %1</source>
        <translation>Выигрыш: %1</translation>
    </message>
    <message>
        <source>Rake: %1</source>
        <translation>Рейк: %1</translation>
    </message>
    <message>
        <source>EV lost: %1</source>
        <translation>Потеря EV: %1</translation>
    </message>
    <message>
        <source>Incorrect: %1</source>
        <translation>Ошибка: %1</translation>
    </message>
    <message>
        <source>Correct: %1</source>
        <translation>Верно: %1</translation>
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
        <translation>Современный быстрый солвер для холдема</translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation>Новый расчёт</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Открыть файл</translation>
    </message>
</context>
<context>
    <name>ImportRange</name>
    <message>
        <source>Import failed: %1</source>
        <translation>Ошибка импорта: %1</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>неизвестная ошибка</translation>
    </message>
    <message>
        <source>Import failed: file contained no recognizable hands.</source>
        <translation>Ошибка импорта: в файле не найдено ни одной руки.</translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation>Импорт диапазона</translation>
    </message>
    <message>
        <source>Range text (*.txt)</source>
        <translation>Текст диапазона (*.txt)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Все файлы (*)</translation>
    </message>
    <message>
        <source>Name this range:</source>
        <translation>Название диапазона:</translation>
    </message>
    <message>
        <source>e.g., BTN open (custom)</source>
        <translation>напр. BTN open (свой)</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Импорт</translation>
    </message>
</context>
<context>
    <name>LibraryColumn</name>
    <message>
        <source>No ranges yet.</source>
        <translation>Диапазонов пока нет.</translation>
    </message>
</context>
<context>
    <name>LibraryRow</name>
    <message>
        <source>Open folder</source>
        <translation>Открытая папка</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
</context>
<context>
    <name>LicensesCard</name>
    <message>
        <source>Licenses</source>
        <translation>Лицензии</translation>
    </message>
    <message>
        <source>Qt Framework</source>
        <translation>Qt Framework</translation>
    </message>
    <message>
        <source>Runtime (dynamic linking)</source>
        <translation>Среда выполнения (динамическая компоновка)</translation>
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
        <translation>Многопоточность</translation>
    </message>
    <message>
        <source>Apache 2.0</source>
        <translation>Apache 2.0</translation>
    </message>
    <message>
        <source>Third-party notices and license texts are included in the &apos;licenses&apos; folder next to the executable.</source>
        <translation>Сведения о стороннем ПО и тексты лицензий находятся в папке «licenses» рядом с исполняемым файлом.</translation>
    </message>
    <message>
        <source>Open licenses folder</source>
        <translation>Открыть папку лицензий</translation>
    </message>
    <message>
        <source>Open notices</source>
        <translation>Открыть сведения о ПО</translation>
    </message>
</context>
<context>
    <name>LoadProfileDialog</name>
    <message>
        <source>Please select a profile.</source>
        <translation>Выберите профиль.</translation>
    </message>
    <message>
        <source>Load Settings Profile</source>
        <translation>Загрузка профиля настроек</translation>
    </message>
    <message>
        <source>Choose a saved profile:</source>
        <translation>Выберите сохранённый профиль:</translation>
    </message>
    <message>
        <source>No saved profiles yet.</source>
        <translation>Сохранённых профилей пока нет.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Загрузить</translation>
    </message>
    <message>
        <source>Delete settings profile</source>
        <translation>Удаление профиля настроек</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this saved profile?</source>
        <translation>Удалить этот сохранённый профиль?</translation>
    </message>
</context>
<context>
    <name>LockModeButtons</name>
    <message>
        <source>Standard mode</source>
        <translation>Обычный режим</translation>
    </message>
    <message>
        <source>Node-lock mode</source>
        <translation>Режим нодлока</translation>
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
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>NodeBox</name>
    <message>
        <source>Pot</source>
        <translation>Банк</translation>
    </message>
    <message>
        <source>Stack (%1)</source>
        <translation>Стек (%1)</translation>
    </message>
    <message>
        <source>To call</source>
        <translation>Для колла</translation>
    </message>
</context>
<context>
    <name>NodeLockPanel</name>
    <message>
        <source>Node-Locking</source>
        <translation>Нодлок</translation>
    </message>
    <message>
        <source>Node-locking is only available on decision nodes.</source>
        <translation>Нодлок доступен только в узлах решений.</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Вес</translation>
    </message>
    <message>
        <source>0..1</source>
        <translation>0..1</translation>
    </message>
    <message>
        <source>Reset weights</source>
        <translation>Сброс весов</translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation>Пересчёт</translation>
    </message>
    <message>
        <source>Tip: select an action above, then click a hand cell in the matrix to lock it.</source>
        <translation>Совет: выберите действие выше и щёлкните руку в матрице, чтобы зафиксировать её.</translation>
    </message>
    <message>
        <source>Undo reset</source>
        <translation>Отменить сброс</translation>
    </message>
</context>
<context>
    <name>NodeLocks</name>
    <message>
        <source>The weight must be a number from 0 to 1</source>
        <translation>Вес должен быть числом от 0 до 1</translation>
    </message>
</context>
<context>
    <name>NodeView</name>
    <message>
        <source>Random river card</source>
        <translation>Случайная карта ривера</translation>
    </message>
    <message>
        <source>Random turn card</source>
        <translation>Случайная карта тёрна</translation>
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
        <translation>Введите число от %1 до %2 (знаков после запятой: не более %3).</translation>
    </message>
    <message>
        <source>Enter a whole number from %1 to %2.</source>
        <translation>Введите целое число от %1 до %2.</translation>
    </message>
</context>
<context>
    <name>PlayActionButton</name>
    <message>
        <source>Key %1</source>
        <translation>Клавиша %1</translation>
    </message>
</context>
<context>
    <name>PlayPanel</name>
    <message>
        <source>Play vs. Solution</source>
        <translation>Игра с солвером</translation>
    </message>
    <message>
        <source>Role: %1</source>
        <translation>Роль: %1</translation>
    </message>
    <message>
        <source>Choose a role to start</source>
        <translation>Выберите роль, чтобы начать</translation>
    </message>
    <message>
        <source>No hands can be dealt here. Solve the spot again to play it.</source>
        <translation>Здесь нельзя раздать руки. Рассчитайте спот заново, чтобы сыграть его.</translation>
    </message>
    <message>
        <source>Hand Log</source>
        <translation>История раздач</translation>
    </message>
    <message>
        <source>Hand details</source>
        <translation>Детали раздачи</translation>
    </message>
    <message>
        <source>Choose a hand in the log.</source>
        <translation>Выберите раздачу в истории.</translation>
    </message>
</context>
<context>
    <name>PlayPrompt</name>
    <message>
        <source>%1 loses %2 EV. Best: %3</source>
        <translation>%1 теряет %2 EV. Лучше: %3</translation>
    </message>
    <message>
        <source>Perfect</source>
        <translation>Идеально</translation>
    </message>
    <message>
        <source>Another hand</source>
        <translation>Ещё раздача</translation>
    </message>
</context>
<context>
    <name>PlaySeat</name>
    <message>
        <source>%1: no cards</source>
        <translation>%1: карт нет</translation>
    </message>
    <message>
        <source>%1: opponent&apos;s cards, face down</source>
        <translation>%1: карты соперника, закрыты</translation>
    </message>
    <message>
        <source>Stack: %1</source>
        <translation>Стек: %1</translation>
    </message>
</context>
<context>
    <name>PlaySession</name>
    <message>
        <source>Wrong — best: %1 (EV -%2)</source>
        <translation>Ошибка — лучше: %1 (EV -%2)</translation>
    </message>
    <message>
        <source>Correct</source>
        <translation>Верно</translation>
    </message>
</context>
<context>
    <name>PlayTable</name>
    <message>
        <source>Table</source>
        <translation>Стол</translation>
    </message>
    <message>
        <source>Dealer button</source>
        <translation>Кнопка дилера</translation>
    </message>
    <message>
        <source>Pot: %1</source>
        <translation>Банк: %1</translation>
    </message>
    <message>
        <source>Click Turn/River to change</source>
        <translation>Нажмите на тёрн/ривер для замены</translation>
    </message>
    <message>
        <source>OOP action: %1</source>
        <translation>Действие OOP: %1</translation>
    </message>
</context>
<context>
    <name>PlayingCard</name>
    <message>
        <source>Face-down card</source>
        <translation>Закрытая карта</translation>
    </message>
    <message>
        <source>Empty card slot</source>
        <translation>Пустое место для карты</translation>
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
        <translation>Итерация %1 | эксплуатируемость: %2</translation>
    </message>
    <message>
        <source>Ready to solve</source>
        <translation>Всё готово к расчёту</translation>
    </message>
    <message>
        <source>Finalizing…</source>
        <translation>Завершение…</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход расчёта</translation>
    </message>
    <message>
        <source>Solver converged — finalizing results…</source>
        <translation>Решение сошлось — подготовка результатов…</translation>
    </message>
    <message>
        <source>Window %1/%2</source>
        <translation>Окно %1/%2</translation>
    </message>
    <message>
        <source>Iterations: %1</source>
        <translation>Итерации: %1</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Показатели</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <translation>Прошло</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Осталось</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>it/s</source>
        <translation>ит/с</translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation>Эксплуат.</translation>
    </message>
    <message>
        <source>Measuring...</source>
        <translation>Измерение…</translation>
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
        <translation>Проект Velmora (*.velmoraproj)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Все файлы (*)</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Сохранить проект</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Открыть проект</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>неизвестная ошибка</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
</context>
<context>
    <name>ProjectHeader</name>
    <message>
        <source>Project Setup</source>
        <translation>Настройка проекта</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Готов</translation>
    </message>
    <message>
        <source>Setup Required</source>
        <translation>Нужна настройка</translation>
    </message>
    <message>
        <source>Solve RAM: %1</source>
        <translation>RAM для расчёта: %1</translation>
    </message>
    <message>
        <source>Available RAM: %1</source>
        <translation>Доступно RAM: %1</translation>
    </message>
    <message>
        <source>Continue to Solve →</source>
        <translation>К расчёту →</translation>
    </message>
    <message>
        <source>Solve RAM: being estimated…</source>
        <translation>RAM для расчёта: оценка…</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Take back the last change (Ctrl+Z)</source>
        <translation>Отменить последнее изменение (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Вернуть</translation>
    </message>
    <message>
        <source>Bring back what was undone (Ctrl+Shift+Z)</source>
        <translation>Вернуть отменённое (Ctrl+Shift+Z)</translation>
    </message>
</context>
<context>
    <name>QuestionDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>QuickActionsCard</name>
    <message>
        <source>Quick Actions</source>
        <translation>Быстрые действия</translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation>Новый расчёт</translation>
    </message>
    <message>
        <source>Configure board, ranges, tree</source>
        <translation>Борд, диапазоны и дерево</translation>
    </message>
    <message>
        <source>Quick Solve</source>
        <translation>Быстрый расчёт</translation>
    </message>
    <message>
        <source>Use default settings</source>
        <translation>С настройками по умолчанию</translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation>Импорт диапазона</translation>
    </message>
    <message>
        <source>Load from file</source>
        <translation>Загрузить из файла</translation>
    </message>
</context>
<context>
    <name>RangeCard</name>
    <message>
        <source>OOP Range</source>
        <translation>Диапазон OOP</translation>
    </message>
    <message>
        <source>IP Range</source>
        <translation>Диапазон IP</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Вес</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>%1 combos (%2%)</source>
        <translation>%1 комбо (%2%)</translation>
    </message>
</context>
<context>
    <name>RangeEditor</name>
    <message>
        <source>Range</source>
        <translation>Диапазон</translation>
    </message>
    <message>
        <source>%1 hands</source>
        <translation>Руки: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>напр. AA, KK, AKs, QQ+ или 50%</translation>
    </message>
</context>
<context>
    <name>RangeLibraries</name>
    <message>
        <source>Standard Ranges</source>
        <translation>Стандартные диапазоны</translation>
    </message>
    <message>
        <source>Population Ranges</source>
        <translation>Диапазоны поля</translation>
    </message>
    <message>
        <source>Custom Ranges</source>
        <translation>Свои диапазоны</translation>
    </message>
    <message>
        <source>Please enter a name.</source>
        <translation>Введите название.</translation>
    </message>
    <message>
        <source>No range content to import.</source>
        <translation>Нет данных диапазона для импорта.</translation>
    </message>
    <message>
        <source>Import failed.</source>
        <translation>Ошибка импорта.</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Ошибка экспорта: %1</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>неизвестная ошибка</translation>
    </message>
    <message>
        <source>Failed to load bundled standard presets (resource file missing/empty).</source>
        <translation>Не удалось загрузить стандартные диапазоны из программы (файл ресурсов отсутствует или пуст).</translation>
    </message>
    <message>
        <source>Failed to load bundled presets: </source>
        <translation>Не удалось загрузить встроенные диапазоны: </translation>
    </message>
</context>
<context>
    <name>RangeTextField</name>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>напр. AA, KK, AKs, QQ+ или 50%</translation>
    </message>
</context>
<context>
    <name>RecentRunsCard</name>
    <message>
        <source>Recent Runs</source>
        <translation>Последние расчёты</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>No runs yet — click Start Solve to record a run here.</source>
        <translation>Расчётов пока нет. Нажмите «Начать расчёт», и он появится здесь.</translation>
    </message>
</context>
<context>
    <name>ResultNotices</name>
    <message>
        <source>The last solve was cancelled. These are the results of the solve before.</source>
        <translation>Последний расчёт отменён. Это результаты предыдущего расчёта.</translation>
    </message>
    <message>
        <source>The last solve was not started: %1. These are the results of the solve before.</source>
        <translation>Последний расчёт не был запущен: %1. Это результаты предыдущего расчёта.</translation>
    </message>
    <message>
        <source>The last solve failed: %1. These are the results of the solve before.</source>
        <translation>Последний расчёт завершился ошибкой: %1. Это результаты предыдущего расчёта.</translation>
    </message>
    <message>
        <source>Solving. These are the results of the solve before, until the new ones are there. %1</source>
        <translation>Идёт расчёт. Пока новых результатов нет, показаны результаты предыдущего расчёта. %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Figures of this node are missing: %1</source>
        <translation>Не хватает данных этого узла: %1</translation>
    </message>
    <message>
        <source>The node locks (%1) are not solved yet. At their nodes the grid, the buckets and the hands show a preview; all other figures are those from before.</source>
        <translation>Нодлоки (%1) ещё не рассчитаны. В их узлах матрица, категории и руки показывают предварительный результат; все остальные значения прежние.</translation>
    </message>
    <message>
        <source>The node locks of this result were removed. It still shows the solve with them.</source>
        <translation>Нодлоки этого результата сняты. Он всё ещё показывает расчёт с ними.</translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation>Пересчёт</translation>
    </message>
    <message>
        <source>The node locks keep the exploitability from falling any further. The solve ended above its target.</source>
        <translation>Нодлоки не дают эксплуатируемости снизиться дальше. Расчёт закончился выше цели.</translation>
    </message>
    <message>
        <source>Setup has changed since this solve</source>
        <translation>«Проект» изменился после этого расчёта</translation>
    </message>
    <message>
        <source>Solve again</source>
        <translation>Рассчитать снова</translation>
    </message>
    <message>
        <source>Take back the setup of this result</source>
        <translation>Вернуть проект этого результата</translation>
    </message>
</context>
<context>
    <name>ResultsHeader</name>
    <message>
        <source>Strategy View</source>
        <translation>Стратегия</translation>
    </message>
    <message>
        <source>%1 to act</source>
        <translation>Ход: %1</translation>
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
        <translation>Эксплуат.</translation>
    </message>
    <message>
        <source>Range view</source>
        <translation>К диапазону</translation>
    </message>
    <message>
        <source>Play vs solution</source>
        <translation>Игра с солвером</translation>
    </message>
</context>
<context>
    <name>RoleChoice</name>
    <message>
        <source>Play as OOP</source>
        <translation>Играть за OOP</translation>
    </message>
    <message>
        <source>Play as both</source>
        <translation>Играть за обоих</translation>
    </message>
    <message>
        <source>Play as IP</source>
        <translation>Играть за IP</translation>
    </message>
</context>
<context>
    <name>RunHistory</name>
    <message>
        <source>Target %1% (≈ %2) • Threads %3</source>
        <translation>Цель: %1% (≈ %2) • Потоки: %3</translation>
    </message>
    <message>
        <source>At most %1 iterations</source>
        <translation>Итерации: не более %1</translation>
    </message>
    <message>
        <source>%1 iterations</source>
        <translation>Итерации: %1</translation>
    </message>
</context>
<context>
    <name>RunRow</name>
    <message>
        <source>Running</source>
        <translation>Выполняется</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Завершён</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Отменён</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Отклонён</translation>
    </message>
</context>
<context>
    <name>SeatLibrary</name>
    <message>
        <source>Please enter a name.</source>
        <translation>Введите название.</translation>
    </message>
    <message>
        <source>Current range is empty.</source>
        <translation>Текущий диапазон пуст.</translation>
    </message>
    <message>
        <source>Please enter a folder name.</source>
        <translation>Введите название папки.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Сбросить настройки</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Сохранить настройки</translation>
    </message>
</context>
<context>
    <name>SettingsProfilesCard</name>
    <message>
        <source>Load settings</source>
        <translation>Открыть профиль</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Сохранить профиль</translation>
    </message>
    <message>
        <source>Please enter a name.</source>
        <translation>Введите название.</translation>
    </message>
    <message>
        <source>Save Settings Profile</source>
        <translation>Сохранение профиля настроек</translation>
    </message>
    <message>
        <source>Profile name:</source>
        <translation>Название профиля:</translation>
    </message>
    <message>
        <source>e.g., 100bb rake-free (fast)</source>
        <translation>напр. 100bb без рейка (быстро)</translation>
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
        <translation>Покерный солвер</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Главная</translation>
    </message>
    <message>
        <source>Overview &amp; quick actions</source>
        <translation>Обзор и быстрые действия</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Проект</translation>
    </message>
    <message>
        <source>Board, ranges, tree</source>
        <translation>Борд, диапазоны, дерево</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Расчёт</translation>
    </message>
    <message>
        <source>Run solver</source>
        <translation>Запуск солвера</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Результаты</translation>
    </message>
    <message>
        <source>Browse strategies</source>
        <translation>Просмотр стратегий</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Параметры</translation>
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
        <translation>Флоп</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Тёрн</translation>
    </message>
    <message>
        <source>River</source>
        <translation>Ривер</translation>
    </message>
    <message>
        <source>OOP Sizing</source>
        <translation>Сайзинги OOP</translation>
    </message>
    <message>
        <source>IP Sizing</source>
        <translation>Сайзинги IP</translation>
    </message>
    <message>
        <source>Bet sizes (%)</source>
        <translation>Ставки (%)</translation>
    </message>
    <message>
        <source>Raise sizes (%)</source>
        <translation>Рейзы (%)</translation>
    </message>
    <message>
        <source>Add All-In</source>
        <translation>С all-in</translation>
    </message>
    <message>
        <source>Don&apos;t donk</source>
        <translation>Без донка</translation>
    </message>
    <message>
        <source>Add all-in if jam less than</source>
        <translation>All-in, если меньше</translation>
    </message>
    <message>
        <source>e.g. 30</source>
        <translation>напр. 30</translation>
    </message>
    <message>
        <source>% pot</source>
        <translation>% банка</translation>
    </message>
</context>
<context>
    <name>SolveActivityCard</name>
    <message>
        <source>Solve Activity</source>
        <translation>Активность расчётов</translation>
    </message>
    <message>
        <source>Last 52 weeks</source>
        <translation>Последние 52 недели</translation>
    </message>
</context>
<context>
    <name>SolveFollower</name>
    <message>
        <source>Iteration %1 | exploitability=%2</source>
        <translation>Итерация %1 | эксплуатируемость: %2</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Ошибка: %1</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Done: node locks keep the exploitability from falling</source>
        <translation>Готово: нодлоки не дают эксплуатируемости снижаться</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Отменён</translation>
    </message>
    <message>
        <source>Building the cards and the tree...</source>
        <translation>Построение карт и дерева…</translation>
    </message>
    <message>
        <source>Preparing the solver...</source>
        <translation>Подготовка солвера…</translation>
    </message>
    <message>
        <source>Starting the solver...</source>
        <translation>Запуск солвера…</translation>
    </message>
    <message>
        <source>Computing the results...</source>
        <translation>Вычисление результатов…</translation>
    </message>
    <message>
        <source>Collecting the tree...</source>
        <translation>Сборка дерева…</translation>
    </message>
</context>
<context>
    <name>SolvePage</name>
    <message>
        <source>Solve</source>
        <translation>Расчёт</translation>
    </message>
    <message>
        <source>Run the CFR solver and monitor progress in real-time.</source>
        <translation>Запуск CFR-солвера и ход расчёта в реальном времени.</translation>
    </message>
    <message>
        <source>Finalizing</source>
        <translation>Завершение</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Выполняется</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Готов</translation>
    </message>
</context>
<context>
    <name>StatusChip</name>
    <message>
        <source>Finalizing</source>
        <translation>Завершение</translation>
    </message>
    <message>
        <source>Solving</source>
        <translation>Идёт расчёт</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Готов</translation>
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
        <translation>Стратегия по рукам</translation>
    </message>
    <message>
        <source>Strategy by Hand (preview, not solved yet)</source>
        <translation>Стратегия по рукам (предварительно, ещё не рассчитана)</translation>
    </message>
</context>
<context>
    <name>StrategyViews</name>
    <message>
        <source>Buckets</source>
        <translation>Категории</translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation>Руки подробно</translation>
    </message>
</context>
<context>
    <name>SystemCard</name>
    <message>
        <source>System</source>
        <translation>Система</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Движок</translation>
    </message>
    <message>
        <source>Dunmarrow Core</source>
        <translation>Dunmarrow Core</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Потоки</translation>
    </message>
    <message>
        <source>%1 available</source>
        <translation>Доступно: %1</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Память</translation>
    </message>
    <message>
        <source>%1 (%2 free)</source>
        <translation>%1 (свободно %2)</translation>
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
        <translation>Главная</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Проект</translation>
    </message>
    <message>
        <source>Start a new project (or load one) from Home to enable Project</source>
        <translation>Создайте или загрузите проект на вкладке «Главная», чтобы открыть «Проект»</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Расчёт</translation>
    </message>
    <message>
        <source>Fill board, ranges, and sizings to enable Solve</source>
        <translation>Задайте борд, диапазоны и сайзинги, чтобы открыть «Расчёт»</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Результаты</translation>
    </message>
    <message>
        <source>Run a solve to enable Results</source>
        <translation>Выполните расчёт, чтобы открыть «Результаты»</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>%1. Still missing: %2.</source>
        <translation>%1. Ещё не задано: %2.</translation>
    </message>
</context>
<context>
    <name>TrainerStatsCard</name>
    <message>
        <source>Play vs. Solution</source>
        <translation>Игра с солвером</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Clear Play vs. Solution Stats</source>
        <translation>Сбросить статистику игры с солвером</translation>
    </message>
    <message>
        <source>Hands (Today / Total)</source>
        <translation>Раздачи (день/всего)</translation>
    </message>
    <message>
        <source>Accuracy (Today / Total)</source>
        <translation>Точность (день/всего)</translation>
    </message>
    <message>
        <source>Avg EV Loss (Today / Total)</source>
        <translation>Ср. потеря EV (день/всего)</translation>
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
        <translation>Доступные действия</translation>
    </message>
    <message>
        <source>%1 options</source>
        <translation>Варианты: %1</translation>
    </message>
    <message>
        <source>Deal %1</source>
        <translation>Сдача: %1</translation>
    </message>
    <message>
        <source>River</source>
        <translation>ривер</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>тёрн</translation>
    </message>
</context>
<context>
    <name>TreeNode</name>
    <message>
        <source>Terminal</source>
        <translation>Конец</translation>
    </message>
    <message>
        <source>Deal</source>
        <translation>Сдача</translation>
    </message>
    <message>
        <source>Pot: %1</source>
        <translation>Банк: %1</translation>
    </message>
    <message>
        <source>Freq: %1%</source>
        <translation>Част.: %1%</translation>
    </message>
    <message>
        <source>EV: %1%2</source>
        <translation>EV: %1%2</translation>
    </message>
    <message>
        <source>Collapse %1</source>
        <translation>Свернуть %1</translation>
    </message>
    <message>
        <source>Expand %1</source>
        <translation>Развернуть %1</translation>
    </message>
</context>
<context>
    <name>TreeWalk</name>
    <message>
        <source>Root</source>
        <translation>Корень</translation>
    </message>
</context>
<context>
    <name>UpdateManager</name>
    <message>
        <source>Update URL is not configured.</source>
        <translation>Адрес обновлений не настроен.</translation>
    </message>
    <message>
        <source>Update check failed: %1</source>
        <translation>Не удалось проверить обновления: %1</translation>
    </message>
    <message>
        <source>Invalid update response (HTTP %1).</source>
        <translation>Неверный ответ сервера обновлений (HTTP %1).</translation>
    </message>
    <message>
        <source>No download URL available.</source>
        <translation>Нет адреса для загрузки.</translation>
    </message>
</context>
<context>
    <name>UpdatesCard</name>
    <message>
        <source>Last checked: %1</source>
        <translation>Последняя проверка: %1</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Обновления</translation>
    </message>
    <message>
        <source>Current version: %1</source>
        <translation>Текущая версия: %1</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>неизвестна</translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation>Доступно обновление: %1</translation>
    </message>
    <message>
        <source>Checking...</source>
        <translation>Проверка…</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Проверить обновления</translation>
    </message>
    <message>
        <source>Download update</source>
        <translation>Скачать обновление</translation>
    </message>
</context>
<context>
    <name>card_names</name>
    <message>
        <source>spades</source>
        <translation>пик</translation>
    </message>
    <message>
        <source>hearts</source>
        <translation>червей</translation>
    </message>
    <message>
        <source>diamonds</source>
        <translation>бубен</translation>
    </message>
    <message>
        <source>clubs</source>
        <translation>треф</translation>
    </message>
    <message>
        <source>Ace</source>
        <translation>Туз</translation>
    </message>
    <message>
        <source>King</source>
        <translation>Король</translation>
    </message>
    <message>
        <source>Queen</source>
        <translation>Дама</translation>
    </message>
    <message>
        <source>Jack</source>
        <translation>Валет</translation>
    </message>
    <message>
        <source>Ten</source>
        <translation>Десятка</translation>
    </message>
    <message>
        <source>Nine</source>
        <translation>Девятка</translation>
    </message>
    <message>
        <source>Eight</source>
        <translation>Восьмёрка</translation>
    </message>
    <message>
        <source>Seven</source>
        <translation>Семёрка</translation>
    </message>
    <message>
        <source>Six</source>
        <translation>Шестёрка</translation>
    </message>
    <message>
        <source>Five</source>
        <translation>Пятёрка</translation>
    </message>
    <message>
        <source>Four</source>
        <translation>Четвёрка</translation>
    </message>
    <message>
        <source>Three</source>
        <translation>Тройка</translation>
    </message>
    <message>
        <source>Two</source>
        <translation>Двойка</translation>
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
        <translation>Хедз-ап</translation>
    </message>
    <message>
        <source>No rake</source>
        <translation>Без рейка</translation>
    </message>
    <message>
        <source>50nl rake</source>
        <translation>Рейк NL50</translation>
    </message>
    <message>
        <source>100nl rake</source>
        <translation>Рейк NL100</translation>
    </message>
    <message>
        <source>200nl rake</source>
        <translation>Рейк NL200</translation>
    </message>
    <message>
        <source>500nl rake</source>
        <translation>Рейк NL500</translation>
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
        <translation>Слабые реги</translation>
    </message>
    <message>
        <source>Tighter reg</source>
        <translation>Тайтовый рег</translation>
    </message>
    <message>
        <source>Looser reg</source>
        <translation>Лузовый рег</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Другие</translation>
    </message>
    <message>
        <source>Nit</source>
        <translation>Нит</translation>
    </message>
    <message>
        <source>Overfolder</source>
        <translation>Оверфолдер</translation>
    </message>
    <message>
        <source>Passive</source>
        <translation>Пассивный</translation>
    </message>
    <message>
        <source>Passive tight</source>
        <translation>Тайтово-пассивный</translation>
    </message>
    <message>
        <source>Passive neutral</source>
        <translation>Средне-пассивный</translation>
    </message>
    <message>
        <source>Passive loose</source>
        <translation>Лузово-пассивный</translation>
    </message>
    <message>
        <source>Extreme loose</source>
        <translation>Суперлузовый</translation>
    </message>
    <message>
        <source>Loose aggressive</source>
        <translation>Лузово-агрессивный</translation>
    </message>
    <message>
        <source>Standard LAG</source>
        <translation>Стандартный ЛАГ</translation>
    </message>
    <message>
        <source>Maniac</source>
        <translation>Маньяк</translation>
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
        <translation>Пн</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Вт</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Ср</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Чт</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Пт</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Сб</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Вс</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>Янв</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>Фев</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>Мар</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Апр</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Май</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>Июн</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>Июл</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Авг</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Сен</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Окт</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Ноя</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Дек</translation>
    </message>
    <message>
        <source>%1 (future)</source>
        <translation>%1 (в будущем)</translation>
    </message>
    <message>
        <source>Solves: %1</source>
        <translation>Расчёты: %1</translation>
    </message>
    <message>
        <source>Avg iters: %1</source>
        <translation>Ср. число ит.: %1</translation>
    </message>
    <message>
        <source>Avg expl: %1</source>
        <translation>Ср. эксплуат.: %1</translation>
    </message>
</context>
</TS>

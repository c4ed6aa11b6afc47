<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>AboutAppWidget</name>
    <message>
        <source>000000, г. Образцовск, ул. Примерная, д. 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>С днём рождения!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Тел.: +7 (000) 555-01-23</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BasePropertyView</name>
    <message>
        <source>Set default to</source>
        <translation>Установить значение по умолчанию</translation>
    </message>
</context>
<context>
    <name>BaseSpeedScriptSelectWidget</name>
    <message>
        <source>Not selected</source>
        <translation>Не выбран</translation>
    </message>
</context>
<context>
    <name>Cli</name>
    <message>
        <source>&apos;%1&apos; names no format, use --format</source>
        <translation>по имени «%1» формат не определить, укажите --format</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: cannot be read</source>
        <translation>«%1»: не удаётся прочитать</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: cannot be written</source>
        <translation>«%1»: не удаётся записать</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: no such experiment</source>
        <translation>«%1»: нет такого эксперимента</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: no such file</source>
        <translation>«%1»: нет такого файла</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: no such script</source>
        <translation>«%1»: нет такого сценария</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: the folder cannot be created</source>
        <translation>«%1»: не удаётся создать папку</translation>
    </message>
    <message>
        <source>&apos;export&apos; needs --output</source>
        <translation>для export нужен --output</translation>
    </message>
    <message>
        <source>&apos;export&apos; needs an experiment</source>
        <translation>для export нужен эксперимент</translation>
    </message>
    <message>
        <source>&apos;list&apos; takes no further words</source>
        <translation>list не принимает других слов</translation>
    </message>
    <message>
        <source>&apos;ports&apos; takes no further words</source>
        <translation>ports не принимает других слов</translation>
    </message>
    <message>
        <source>&apos;record&apos; takes options only</source>
        <translation>record принимает только параметры</translation>
    </message>
    <message>
        <source>&apos;replay&apos; takes one status log</source>
        <translation>replay принимает один журнал состояния</translation>
    </message>
    <message>
        <source>&apos;script&apos; takes one file</source>
        <translation>script принимает один файл</translation>
    </message>
    <message>
        <source>&apos;table&apos; needs an experiment</source>
        <translation>для table нужен эксперимент</translation>
    </message>
    <message>
        <source>--%1 takes a number from %2 to %3</source>
        <translation>--%1 принимает число от %2 до %3</translation>
    </message>
    <message>
        <source>--%1 takes one of %2</source>
        <translation>--%1 принимает одно из: %2</translation>
    </message>
    <message>
        <source>--data needs a folder</source>
        <translation>для --data нужна папка</translation>
    </message>
    <message>
        <source>--script and --speed exclude each other</source>
        <translation>--script и --speed исключают друг друга</translation>
    </message>
    <message>
        <source>--script needs a title</source>
        <translation>для --script нужно название</translation>
    </message>
    <message>
        <source>--speed and --unit go together</source>
        <translation>--speed и --unit указываются вместе</translation>
    </message>
    <message>
        <source>--speed is above what the drum can do</source>
        <translation>--speed больше возможного для барабана</translation>
    </message>
    <message>
        <source>--thresholds takes %1 numbers from %2 to %3, separated by &apos;;&apos;</source>
        <translation>--thresholds принимает %1 чисел от %2 до %3 через «;»</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Комментарий</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Подключено к %1</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>Duration %1 s, %2 loops</source>
        <translation>Длительность %1 с, циклов: %2</translation>
    </message>
    <message>
        <source>Duration %1 s, endless</source>
        <translation>Длительность %1 с, бесконечно</translation>
    </message>
    <message>
        <source>End, ms</source>
        <translation>Конец, мс</translation>
    </message>
    <message>
        <source>Firmware version %1</source>
        <translation>Версия прошивки %1</translation>
    </message>
    <message>
        <source>Lane</source>
        <translation>Дорожка</translation>
    </message>
    <message>
        <source>Lane %1: off the drum after %2 s</source>
        <translation>Дорожка %1: сошло с барабана через %2 с</translation>
    </message>
    <message>
        <source>Lane %1: on the drum</source>
        <translation>Дорожка %1: на барабане</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Путь</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Производитель</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Recording to %1</source>
        <translation>Запись в %1</translation>
    </message>
    <message>
        <source>Rodent</source>
        <translation>Грызун</translation>
    </message>
    <message>
        <source>Rotations</source>
        <translation>Обороты</translation>
    </message>
    <message>
        <source>Serial number %1</source>
        <translation>Серийный номер %1</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Start, ms</source>
        <translation>Начало, мс</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Остановлено</translation>
    </message>
    <message>
        <source>The link to the instrument was lost</source>
        <translation>Связь с прибором потеряна</translation>
    </message>
    <message>
        <source>The sensors are not calibrated, default thresholds are in force</source>
        <translation>Датчики не откалиброваны, действуют пороги по умолчанию</translation>
    </message>
    <message>
        <source>Time, s</source>
        <translation>Время, с</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>Tried</source>
        <translation>Проверяется</translation>
    </message>
    <message>
        <source>interrupted before a recording began</source>
        <translation>прервано до начала записи</translation>
    </message>
    <message>
        <source>mouse</source>
        <translation>мышь</translation>
    </message>
    <message>
        <source>no</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>no command given, see --help</source>
        <translation>команда не указана, см. --help</translation>
    </message>
    <message>
        <source>no instrument answered in time</source>
        <translation>прибор не ответил вовремя</translation>
    </message>
    <message>
        <source>no speed script, line %1: %2</source>
        <translation>не сценарий скорости, строка %1: %2</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>нет такого файла</translation>
    </message>
    <message>
        <source>rat</source>
        <translation>крыса</translation>
    </message>
    <message>
        <source>standard output: cannot be written</source>
        <translation>стандартный вывод: не удаётся записать</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;, see --help</source>
        <translation>неизвестная команда «%1», см. --help</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;</source>
        <translation>неизвестный язык «%1»</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>да</translation>
    </message>
</context>
<context>
    <name>ColorThemeEnum</name>
    <message>
        <source>Dark</source>
        <translation>Тёмная</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Светлая</translation>
    </message>
    <message>
        <source>System</source>
        <translation>По выбору системы</translation>
    </message>
</context>
<context>
    <name>ComUpdaterWidget</name>
    <message>
        <source>Attention: the firmware has most likely NOT been written!</source>
        <translation>Внимание: скорее всего, прошивка НЕ записана!</translation>
    </message>
    <message>
        <source>Done!</source>
        <translation>Готово!</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Прошивка</translation>
    </message>
    <message>
        <source>Open firmware file</source>
        <translation>Открыть файл прошивки</translation>
    </message>
    <message>
        <source>Output of the tool</source>
        <translation>Вывод программы записи</translation>
    </message>
    <message>
        <source>There were errors while uploading firmware</source>
        <translation>При записи прошивки произошли ошибки</translation>
    </message>
    <message>
        <source>Update firmware</source>
        <translation>Обновить прошивку</translation>
    </message>
    <message>
        <source>Valid firmware</source>
        <translation>Прошивка пригодна</translation>
    </message>
    <message>
        <source>Writing through %1: %2 s. This window can be closed when the tool has ended.</source>
        <translation>Запись через %1: %2 с. Окно можно закрыть, когда программа записи завершится.</translation>
    </message>
</context>
<context>
    <name>ExperimentViewer</name>
    <message>
        <source>Results</source>
        <translation>Результаты</translation>
    </message>
</context>
<context>
    <name>ExportBehaviorOption</name>
    <message>
        <source>OnExport_DoNothing</source>
        <translation>Ничего не делать</translation>
    </message>
    <message>
        <source>OnExport_OpenFile</source>
        <translation>Открыть файл</translation>
    </message>
    <message>
        <source>OnExport_OpenFolder</source>
        <translation>Открыть папку</translation>
    </message>
</context>
<context>
    <name>Filesize</name>
    <message>
        <source>B</source>
        <translation>Б</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>ГБ</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>КБ</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>МБ</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>ТБ</translation>
    </message>
</context>
<context>
    <name>FirmwareBundle</name>
    <message>
        <source>Missing in the bundle: %1</source>
        <translation>В архиве не хватает: %1</translation>
    </message>
    <message>
        <source>The bundle cannot be unpacked: %1</source>
        <translation>Архив не удаётся распаковать: %1</translation>
    </message>
    <message>
        <source>The bundle holds an entry that is not allowed: %1</source>
        <translation>В архиве есть недопустимая запись: %1</translation>
    </message>
    <message>
        <source>The bundle holds more than %1 entries</source>
        <translation>В архиве больше %1 записей</translation>
    </message>
    <message>
        <source>The bundle is damaged: %1</source>
        <translation>Архив повреждён: %1</translation>
    </message>
    <message>
        <source>The bundle is larger than %1 MB when unpacked</source>
        <translation>Распакованный архив больше %1 МБ</translation>
    </message>
    <message>
        <source>The file is not a zip archive or is cut off</source>
        <translation>Файл не является zip-архивом или обрезан</translation>
    </message>
</context>
<context>
    <name>Generic</name>
    <message>
        <source> m</source>
        <translation>м</translation>
    </message>
    <message>
        <source> s</source>
        <translation> с</translation>
    </message>
    <message>
        <source>#</source>
        <translation>№</translation>
    </message>
    <message>
        <source>-bit</source>
        <translation>-бит</translation>
    </message>
    <message>
        <source>1.Common</source>
        <translation>Общее</translation>
    </message>
    <message>
        <source>2.Experiment</source>
        <translation>Эксперимент</translation>
    </message>
    <message>
        <source>3.Detection</source>
        <translation>Детекция</translation>
    </message>
    <message>
        <source>Average value</source>
        <translation>Среднее значение</translation>
    </message>
    <message>
        <source>Avg.speed</source>
        <translation>Ср.скорость</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Cannot start because</source>
        <translation>Запуск невозможен, так как</translation>
    </message>
    <message>
        <source>ChangeLog</source>
        <translation>Список изменений</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>ColorTheme</source>
        <translation>Цветовая тема</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Коммент</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>Developers</source>
        <translation>Разработчики</translation>
    </message>
    <message>
        <source>Dispersion</source>
        <translation>Дисперсия</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Расстояние</translation>
    </message>
    <message>
        <source>DurationSeconds</source>
        <translation>Длительность</translation>
    </message>
    <message>
        <source>ExportBehavior</source>
        <translation>При экспорте</translation>
    </message>
    <message>
        <source>Fall speed</source>
        <translation>Cк.падения</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>Обратная связь</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-адрес</translation>
    </message>
    <message>
        <source>Image</source>
        <translatorcomment>The source text stands.</translatorcomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index</source>
        <translation>№</translation>
    </message>
    <message>
        <source>Infinite</source>
        <translation>Бесконечный повтор</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>Интервал</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Language change</source>
        <translation>Смена языка</translation>
    </message>
    <message>
        <source>Loops</source>
        <translation>Циклы</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Руководство</translation>
    </message>
    <message>
        <source>MaxTrailDetectionSeconds</source>
        <translation>Макс. ожидание</translation>
    </message>
    <message>
        <source>MinDetectionSeconds</source>
        <translation>Мин. время пребывания</translation>
    </message>
    <message>
        <source>N</source>
        <translatorcomment>The source text stands.</translatorcomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New version</source>
        <translation>Новая версия</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation type="unfinished">Нет подключен</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Не сейчас</translation>
    </message>
    <message>
        <source>OK</source>
        <translatorcomment>The source text stands.</translatorcomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OS</source>
        <translation>ОС</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open API in browser</source>
        <translation>Открыть API в браузере</translation>
    </message>
    <message>
        <source>Open app manual</source>
        <translation>Открыть руководство пользователя</translation>
    </message>
    <message>
        <source>Open change log</source>
        <translation>Открыть список изменений (changelog)</translation>
    </message>
    <message>
        <source>Other</source>
        <translatorcomment>The source text stands.</translatorcomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rodent</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>RodentMode</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>RotationDimension</source>
        <translation>Размерность</translation>
    </message>
    <message>
        <source>Rotations</source>
        <translation>Обороты</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Сценарий</translation>
    </message>
    <message>
        <source>Script editor</source>
        <translation>Редактор сценариев</translation>
    </message>
    <message>
        <source>ShowIR</source>
        <translation>Показать значения ИК</translation>
    </message>
    <message>
        <source>Spinbar</source>
        <translation>Спинбар</translation>
    </message>
    <message>
        <source>Standard deviation</source>
        <translation>Среднеквадратичное отклонение</translation>
    </message>
    <message>
        <source>StartMaximized</source>
        <translation>Запуск на полный экран</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>To translate the app to the other language a restart is required. 
Restart now?</source>
        <translation>Для смены языка необходим перезапуск программы. 
Перезапустить сейчас?</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>Video</source>
        <translatorcomment>The source text stands.</translatorcomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>built on </source>
        <translation>сборка от </translation>
    </message>
    <message>
        <source>cm</source>
        <translation>см</translation>
    </message>
    <message>
        <source>cm/s</source>
        <translation>см/c</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>км/ч</translation>
    </message>
    <message>
        <source>m</source>
        <translation>м</translation>
    </message>
    <message>
        <source>m/s</source>
        <translation>м/c</translation>
    </message>
    <message>
        <source>mA</source>
        <translation>мА</translation>
    </message>
    <message>
        <source>rot.</source>
        <translation>об.</translation>
    </message>
    <message>
        <source>rpm</source>
        <translation>об./мин</translation>
    </message>
    <message>
        <source>rps</source>
        <translation>об./c</translation>
    </message>
    <message>
        <source>s</source>
        <translation>с</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>секунды</translation>
    </message>
    <message>
        <source>these apps are already running</source>
        <translation>эти приложения уже запущены</translation>
    </message>
    <message>
        <source>this app is already running</source>
        <translation>это приложение уже запущено</translation>
    </message>
</context>
<context>
    <name>KeyValueTableWidget</name>
    <message>
        <source>Key/Name</source>
        <translation>Ключ/Имя</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
</context>
<context>
    <name>KeyValueWidget</name>
    <message>
        <source>+</source>
        <translatorcomment>The source text stands.</translatorcomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Значение</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ключ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Новый</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Записи</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Настройки</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>О программе</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Устройство</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MultilineKeyValueTable</name>
    <message>
        <source>Define different key!</source>
        <translation>Задайте другой ключ!</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Ключ</translation>
    </message>
    <message>
        <source>Key already exists!</source>
        <translation>Такой ключ уже существует!</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
</context>
<context>
    <name>NewVersionChecker</name>
    <message>
        <source>Click to download new version</source>
        <translation>Нажмите для загрузки новой версии</translation>
    </message>
</context>
<context>
    <name>OutputSpeedDimension</name>
    <message>
        <source>CentimetersPerSecond</source>
        <translation>см/c</translation>
    </message>
    <message>
        <source>KilometersPerHour</source>
        <translation>км/ч</translation>
    </message>
    <message>
        <source>MetersPerSecond</source>
        <translation>м/c</translation>
    </message>
    <message>
        <source>RotationsPerMinute</source>
        <translation>об./мин</translation>
    </message>
    <message>
        <source>RotationsPerSecond</source>
        <translation>об./c</translation>
    </message>
</context>
<context>
    <name>PageAbout</name>
    <message>
        <source>Анна Образцова</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Елена Шаблонова</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Иван Примеров</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Мария Условная</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ООО «Лаборатория Примерова»</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Олег Тестов</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Пётр Вымыслов</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageDatabase</name>
    <message>
        <source>Cannot rename experiment</source>
        <translation>Невозможно переименовать папку эксперимента</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Данные</translation>
    </message>
    <message>
        <source>Error saving</source>
        <translation>Ошибка сохранения</translation>
    </message>
    <message>
        <source>Experiment title cannot be empty</source>
        <translation>Название эксперимента не может быть пустым</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>Export to spreadsheet</source>
        <translation>Экспорт в табличный файл</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Нет данных</translation>
    </message>
    <message>
        <source>Open in explorer</source>
        <translation>Открыть в проводнике</translation>
    </message>
    <message>
        <source>Reload records</source>
        <translation>Перегрузить эксперименты</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Remove experiment</source>
        <translation>Удалить эксперимент</translation>
    </message>
    <message>
        <source>Remove experiments</source>
        <translation>Удалить эксперименты</translation>
    </message>
    <message>
        <source>Remove selected experiment</source>
        <translation>Удалить выбранный эксперимент</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Показать в папке</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Обобщение</translation>
    </message>
    <message>
        <source>This title is already used</source>
        <translation>Такое название уже используется</translation>
    </message>
    <message>
        <source>selected experiments</source>
        <translation>выбранные эксперименты</translation>
    </message>
</context>
<context>
    <name>PortRows</name>
    <message>
        <source>No serial ports found</source>
        <translation>Последовательные порты не найдены</translation>
    </message>
</context>
<context>
    <name>QTableWidgetWithCopyPaste</name>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Invalid clipboard data, incorrect number of columns.</source>
        <translatorcomment>The source text stands.</translatorcomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid clipboard data, unable to perform paste operation.</source>
        <translatorcomment>The source text stands.</translatorcomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RodentMode</name>
    <message>
        <source>Mice</source>
        <translation>Мыши</translation>
    </message>
    <message>
        <source>Rats</source>
        <translation>Крысы</translation>
    </message>
</context>
<context>
    <name>SampleScripts</name>
    <message>
        <source>Accelerating 4 to 30 rpm in 300 s</source>
        <translation>Ускорение от 4 до 30 об. в мин. за 300 с</translation>
    </message>
    <message>
        <source>Accelerating 4 to 30 rpm in 300 s after 10 s at 4 rpm</source>
        <translation>Ускорение от 4 до 30 об. в мин. за 300 с, сначала 10 с на 4</translation>
    </message>
    <message>
        <source>Accelerating 4 to 30 rpm in 60 s</source>
        <translation>Ускорение от 4 до 30 об. в мин. за 60 с</translation>
    </message>
    <message>
        <source>Accelerating 4 to 30 rpm, slope of 4 to 40 in 300 s</source>
        <translation>Ускорение от 4 до 30 об. в мин., наклон 4–40 за 300 с</translation>
    </message>
    <message>
        <source>Accelerating 5 to 25 rpm in 180 s</source>
        <translation>Ускорение от 5 до 25 об. в мин. за 180 с</translation>
    </message>
    <message>
        <source>Constant 12 rpm for 60 s</source>
        <translation>Постоянно 12 об. в мин., 60 с</translation>
    </message>
    <message>
        <source>Constant 16 rpm for 60 s</source>
        <translation>Постоянно 16 об. в мин., 60 с</translation>
    </message>
    <message>
        <source>Constant 20 rpm for 60 s</source>
        <translation>Постоянно 20 об. в мин., 60 с</translation>
    </message>
    <message>
        <source>Constant 4 rpm for 300 s</source>
        <translation>Постоянно 4 об. в мин., 300 с</translation>
    </message>
    <message>
        <source>Constant 5 rpm for 60 s</source>
        <translation>Постоянно 5 об. в мин., 60 с</translation>
    </message>
    <message>
        <source>Rats, steps of 3 rpm every 10 s</source>
        <translation>Крысы, ступени по 3 об. в мин. каждые 10 с</translation>
    </message>
    <message>
        <source>Steps of 5 rpm every 30 s</source>
        <translation>Ступени по 5 об. в мин. каждые 30 с</translation>
    </message>
</context>
<context>
    <name>SettingsWithLanguage</name>
    <message>
        <source>Language will be changed on program restart</source>
        <translation>Язык будет изменён при перезапуске программы</translation>
    </message>
</context>
<context>
    <name>ShelterAction</name>
    <message>
        <source>Curcuit</source>
        <translation>Сила тока</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Светлая</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
</context>
<context>
    <name>ShelterSide</name>
    <message>
        <source>Both</source>
        <translation>Обе стороны</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Слева</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Справа</translation>
    </message>
</context>
<context>
    <name>ShelterSideness</name>
    <message>
        <source>LeftSide</source>
        <translation>Левая сторона</translation>
    </message>
    <message>
        <source>RightSide</source>
        <translation>Правая сторона</translation>
    </message>
</context>
<context>
    <name>SpecialPropertyView</name>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Любой файл</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpeedScriptEditor</name>
    <message>
        <source>Add sample scripts</source>
        <translation>Добавить примеры сценариев</translation>
    </message>
    <message>
        <source>Change script title</source>
        <translation>Изменённое название сценария</translation>
    </message>
    <message>
        <source>Clone script</source>
        <translation>Клонировать сценарий</translation>
    </message>
    <message>
        <source>Enter new cloned script title</source>
        <translation>Название клонированного сценария</translation>
    </message>
    <message>
        <source>Enter new script title</source>
        <translation>Название нового сценария</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Incorrect script title</source>
        <translation>Некорректное название сценария</translation>
    </message>
    <message>
        <source>New script</source>
        <translation>Новый сценарий</translation>
    </message>
    <message>
        <source>Remove script</source>
        <translation>Удалить сценарий</translation>
    </message>
    <message>
        <source>Rename script</source>
        <translation>Переименовать сценарий</translation>
    </message>
    <message>
        <source>Script name</source>
        <translation>Название сценария</translation>
    </message>
    <message>
        <source>Script removal</source>
        <translation>Удаление сценария</translation>
    </message>
    <message>
        <source>Script title cannot be empty</source>
        <translation>Название сценария не может быть пустым</translation>
    </message>
    <message>
        <source>Script with this title already exists</source>
        <translation>Сценарий с таким названием уже существует</translation>
    </message>
    <message>
        <source>Unable to add sample scripts</source>
        <translation>Невозможно добавить примеры сценариев</translation>
    </message>
    <message>
        <source>Unable to clone script</source>
        <translation>Невозможно клонировать сценарий</translation>
    </message>
    <message>
        <source>Unable to remove file</source>
        <translation>Невозможно удалить сценарий</translation>
    </message>
    <message>
        <source>Unable to rename script</source>
        <translation>Невозможно переименовать сценарий</translation>
    </message>
</context>
<context>
    <name>SpeedScriptSelectAndRunWidget</name>
    <message>
        <source>Cycle</source>
        <translation>Цикл</translation>
    </message>
    <message>
        <source>Run script</source>
        <translation>Запустить сценарий</translation>
    </message>
    <message>
        <source>Stop script</source>
        <translation>Остановить сценарий</translation>
    </message>
</context>
<context>
    <name>SpeedScriptViewer</name>
    <message>
        <source>By default the marker positions are rounded to whole numbers (seconds and RPM).</source>
        <translation>По умолчания положение маркеров округляется до целых значений (секунд и об./мин).</translation>
    </message>
    <message>
        <source>Click the line or markers,<byte value="xd"/>
hold and drag to desired position</source>
        <translation>Нажмите на линию или маркеры
и перетяните в желаемую позицию</translation>
    </message>
    <message>
        <source>If a more accurate position handling is required press and hold the &apos;SHIFT&apos; key while dragging markers</source>
        <translation>Если требуется более точная настройка, то зажмите &apos;SHIFT&apos; на клавиатуре при перемещении маркеров</translation>
    </message>
    <message>
        <source>Script editing information</source>
        <translation>Информация по редактированию сценария</translation>
    </message>
    <message>
        <source>Speed graph</source>
        <translation>График скорости</translation>
    </message>
    <message>
        <source>To create a new marker press anywhere on the blue line and drag the new marker to desired position.&lt;br&gt;</source>
        <translation>Для создания нового маркера - нажмите в любом месте на синюю линию и перетяните новый маркер в желаемое положение.&lt;br&gt;</translation>
    </message>
    <message>
        <source>To remove a marker: &lt;ul style=&quot;margin: 0&quot;&gt;&lt;li&gt;Press &apos;ALT&apos; on the keyboard and click the marker&lt;br&gt;&lt;em&gt;or&lt;/em&gt;&lt;/li&gt;&lt;li&gt;Move the marker and join it with another marker&lt;/li&gt;&lt;/ul&gt;</source>
        <translation>Для удаления маркера: &lt;ul style=&quot;margin: 0&quot;&gt;&lt;li&gt;Зажмите &apos;ALT&apos; и нажмите на удаляемый маркер&lt;br&gt;&lt;em&gt;или&lt;/em&gt;&lt;/li&gt;&lt;li&gt;Переместите маркер на любой другой маркер, соединив их в одной точке&lt;/li&gt;&lt;/ul&gt;</translation>
    </message>
</context>
<context>
    <name>SpinbarController</name>
    <message>
        <source>Device is not connected</source>
        <translation>Подключите устройство</translation>
    </message>
    <message>
        <source>Electric grid</source>
        <translation>Электросетка</translation>
    </message>
    <message>
        <source>Manual calibration</source>
        <translation>Калибровка вручную</translation>
    </message>
    <message>
        <source>Manual control</source>
        <translation>Вручную</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Сценарий</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Включите силовое питание</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Вращение включено</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Вращение не осуществляется</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Выключить вращение</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Выключить электросетку</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Калибровка</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Калибровка в процессе</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Калибровка датчиков</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Нажмите &quot;Начать&quot; и дождитесь окончания калибровки</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Не помещайте грызунов на барабан</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Поместите барабан для крыс</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Поместите барабан для мышей</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Спинбар и силовое питание подключено</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Спинбар найден, но силовое питание не подключено</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Спинбар не найден</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Электрическая сетка не включена</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpinbarLanguage</name>
    <message>
        <source>en_US</source>
        <translation>English</translation>
    </message>
    <message>
        <source>ru_RU</source>
        <translation>Русский</translation>
    </message>
</context>
<context>
    <name>SpinbarRecord</name>
    <message>
        <source>CKO</source>
        <translatorcomment>The source text stands.</translatorcomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D</source>
        <translatorcomment>The source text stands.</translatorcomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>M</source>
        <translatorcomment>The source text stands.</translatorcomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpinbarWriterWidget</name>
    <message>
        <source>Current coefficient, mA - max current for the 255 value</source>
        <translation>Коэффициент тока, мА — наибольший ток при значении 255</translation>
    </message>
    <message>
        <source>CurrentCoeff</source>
        <translation>Коэфф. тока</translation>
    </message>
    <message>
        <source>Device writer</source>
        <translation>Запись параметров прибора</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Записать</translation>
    </message>
    <message>
        <source>Gen</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>Generate serial number</source>
        <translation>Создать серийный номер</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>Motor acceleration coeffient, RPM</source>
        <translation>Коэффициент ускорения мотора, об/мин</translation>
    </message>
    <message>
        <source>Motor calibration coeffient - a multiplier of speed</source>
        <translation>Калибровочный коэффициент мотора — множитель скорости</translation>
    </message>
    <message>
        <source>Motor deceleration coeffient, RPM</source>
        <translation>Коэффициент замедления мотора, об/мин</translation>
    </message>
    <message>
        <source>MotorAcc</source>
        <translation>Ускорение мотора</translation>
    </message>
    <message>
        <source>MotorCoeff</source>
        <translation>Коэфф. мотора</translation>
    </message>
    <message>
        <source>MotorDec</source>
        <translation>Замедление мотора</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Порт</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Прочитать</translation>
    </message>
    <message>
        <source>Refill the list of ports</source>
        <translation>Заполнить список портов заново</translation>
    </message>
    <message>
        <source>SN:</source>
        <translation>Сер. №:</translation>
    </message>
    <message>
        <source>Serial number in format &apos;B4YYMMBNN&apos; where:
&apos;YY&apos; - year code,
&apos;MM&apos;-month code,
&apos;B&apos; - batch code,
&apos;NN&apos; - number in batch
(e.g. &apos;B2403101&apos; was built in March, 2024 first in first batch)</source>
        <translation>Серийный номер в виде &apos;B4YYMMBNN&apos;, где:
&apos;YY&apos; - год,
&apos;MM&apos; - месяц,
&apos;B&apos; - партия,
&apos;NN&apos; - номер в партии
(например, &apos;B2403101&apos; собран в марте 2024 года первым в первой партии)</translation>
    </message>
    <message>
        <source>Serial number is generated as follows</source>
        <translation>Серийный номер составлен так</translation>
    </message>
    <message>
        <source>Serial number should start with &apos;B&apos;, continue?</source>
        <translation>Серийный номер должен начинаться с &apos;B&apos;, продолжить?</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Версия:</translation>
    </message>
    <message>
        <source>Waiting for previous transaction</source>
        <translation>Ещё не закончен предыдущий обмен</translation>
    </message>
    <message>
        <source>Write %1</source>
        <translation>Записать: %1</translation>
    </message>
    <message>
        <source>for Spinbar, version 4</source>
        <translation>для Спинбара версии 4</translation>
    </message>
    <message>
        <source>for batch number</source>
        <translation>номер партии</translation>
    </message>
    <message>
        <source>for current month</source>
        <translation>текущий месяц</translation>
    </message>
    <message>
        <source>for current year</source>
        <translation>текущий год</translation>
    </message>
    <message>
        <source>for the number of device in the batch</source>
        <translation>номер прибора в партии</translation>
    </message>
</context>
<context>
    <name>ToolRun</name>
    <message>
        <source>The tool could not be started: %1</source>
        <translation>Не удалось запустить программу записи: %1</translation>
    </message>
    <message>
        <source>The tool crashed</source>
        <translation>Программа записи аварийно завершилась</translation>
    </message>
    <message>
        <source>The tool ended with the code %1</source>
        <translation>Программа записи завершилась с кодом %1</translation>
    </message>
    <message>
        <source>The tool was silent for too long and was stopped</source>
        <translation>Программа записи слишком долго молчала и была остановлена</translation>
    </message>
</context>
</TS>

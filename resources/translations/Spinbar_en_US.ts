<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>AboutAppWidget</name>
    <message>
        <source>000000, г. Образцовск, ул. Примерная, д. 1</source>
        <translation>1 Primernaya Street, Obraztsovsk, 000000</translation>
    </message>
    <message>
        <source>С днём рождения!</source>
        <translatorcomment>The source text stands.</translatorcomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Тел.: +7 (000) 555-01-23</source>
        <translation>Phone: +7 (000) 555-01-23</translation>
    </message>
</context>
<context>
    <name>BasePropertyView</name>
    <message>
        <source>Set default to</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BaseSpeedScriptSelectWidget</name>
    <message>
        <source>Not selected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Cli</name>
    <message>
        <source>&apos;%1&apos; names no format, use --format</source>
        <translation>&apos;%1&apos; names no format, use --format</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: cannot be read</source>
        <translation>&apos;%1&apos;: cannot be read</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: cannot be written</source>
        <translation>&apos;%1&apos;: cannot be written</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: no such experiment</source>
        <translation>&apos;%1&apos;: no such experiment</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: no such file</source>
        <translation>&apos;%1&apos;: no such file</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: no such script</source>
        <translation>&apos;%1&apos;: no such script</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: the folder cannot be created</source>
        <translation>&apos;%1&apos;: the folder cannot be created</translation>
    </message>
    <message>
        <source>&apos;export&apos; needs --output</source>
        <translation>&apos;export&apos; needs --output</translation>
    </message>
    <message>
        <source>&apos;export&apos; needs an experiment</source>
        <translation>&apos;export&apos; needs an experiment</translation>
    </message>
    <message>
        <source>&apos;list&apos; takes no further words</source>
        <translation>&apos;list&apos; takes no further words</translation>
    </message>
    <message>
        <source>&apos;ports&apos; takes no further words</source>
        <translation>&apos;ports&apos; takes no further words</translation>
    </message>
    <message>
        <source>&apos;record&apos; takes options only</source>
        <translation>&apos;record&apos; takes options only</translation>
    </message>
    <message>
        <source>&apos;replay&apos; takes one status log</source>
        <translation>&apos;replay&apos; takes one status log</translation>
    </message>
    <message>
        <source>&apos;script&apos; takes one file</source>
        <translation>&apos;script&apos; takes one file</translation>
    </message>
    <message>
        <source>&apos;table&apos; needs an experiment</source>
        <translation>&apos;table&apos; needs an experiment</translation>
    </message>
    <message>
        <source>--%1 takes a number from %2 to %3</source>
        <translation>--%1 takes a number from %2 to %3</translation>
    </message>
    <message>
        <source>--%1 takes one of %2</source>
        <translation>--%1 takes one of %2</translation>
    </message>
    <message>
        <source>--data needs a folder</source>
        <translation>--data needs a folder</translation>
    </message>
    <message>
        <source>--script and --speed exclude each other</source>
        <translation>--script and --speed exclude each other</translation>
    </message>
    <message>
        <source>--script needs a title</source>
        <translation>--script needs a title</translation>
    </message>
    <message>
        <source>--speed and --unit go together</source>
        <translation>--speed and --unit go together</translation>
    </message>
    <message>
        <source>--speed is above what the drum can do</source>
        <translation>--speed is above what the drum can do</translation>
    </message>
    <message>
        <source>--thresholds takes %1 numbers from %2 to %3, separated by &apos;;&apos;</source>
        <translation>--thresholds takes %1 numbers from %2 to %3, separated by &apos;;&apos;</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comment</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Connected to %1</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Duration %1 s, %2 loops</source>
        <translation>Duration %1 s, %2 loops</translation>
    </message>
    <message>
        <source>Duration %1 s, endless</source>
        <translation>Duration %1 s, endless</translation>
    </message>
    <message>
        <source>End, ms</source>
        <translation>End, ms</translation>
    </message>
    <message>
        <source>Firmware version %1</source>
        <translation>Firmware version %1</translation>
    </message>
    <message>
        <source>Lane</source>
        <translation>Lane</translation>
    </message>
    <message>
        <source>Lane %1: off the drum after %2 s</source>
        <translation>Lane %1: off the drum after %2 s</translation>
    </message>
    <message>
        <source>Lane %1: on the drum</source>
        <translation>Lane %1: on the drum</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Location</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Manufacturer</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Recording to %1</source>
        <translation>Recording to %1</translation>
    </message>
    <message>
        <source>Rodent</source>
        <translation>Rodent</translation>
    </message>
    <message>
        <source>Rotations</source>
        <translation>Rotations</translation>
    </message>
    <message>
        <source>Serial number %1</source>
        <translation>Serial number %1</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>Start, ms</source>
        <translation>Start, ms</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Stopped</translation>
    </message>
    <message>
        <source>The link to the instrument was lost</source>
        <translation>The link to the instrument was lost</translation>
    </message>
    <message>
        <source>The sensors are not calibrated, default thresholds are in force</source>
        <translation>The sensors are not calibrated, default thresholds are in force</translation>
    </message>
    <message>
        <source>Time, s</source>
        <translation>Time, s</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Tried</source>
        <translation>Tried</translation>
    </message>
    <message>
        <source>interrupted before a recording began</source>
        <translation>interrupted before a recording began</translation>
    </message>
    <message>
        <source>mouse</source>
        <translation>mouse</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>no command given, see --help</source>
        <translation>no command given, see --help</translation>
    </message>
    <message>
        <source>no instrument answered in time</source>
        <translation>no instrument answered in time</translation>
    </message>
    <message>
        <source>no speed script, line %1: %2</source>
        <translation>no speed script, line %1: %2</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>no such file</translation>
    </message>
    <message>
        <source>rat</source>
        <translation>rat</translation>
    </message>
    <message>
        <source>standard output: cannot be written</source>
        <translation>standard output: cannot be written</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;, see --help</source>
        <translation>unknown command &apos;%1&apos;, see --help</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;</source>
        <translation>unknown language &apos;%1&apos;</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>yes</translation>
    </message>
</context>
<context>
    <name>ColorThemeEnum</name>
    <message>
        <source>Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ComUpdaterWidget</name>
    <message>
        <source>Attention: the firmware has most likely NOT been written!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open firmware file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output of the tool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There were errors while uploading firmware</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update firmware</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Valid firmware</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing through %1: %2 s. This window can be closed when the tool has ended.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExperimentViewer</name>
    <message>
        <source>Results</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportBehaviorOption</name>
    <message>
        <source>OnExport_DoNothing</source>
        <translation>Do nothing</translation>
    </message>
    <message>
        <source>OnExport_OpenFile</source>
        <translation>Open file</translation>
    </message>
    <message>
        <source>OnExport_OpenFolder</source>
        <translation>Open folder</translation>
    </message>
</context>
<context>
    <name>Filesize</name>
    <message>
        <source>B</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TB</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FirmwareBundle</name>
    <message>
        <source>Missing in the bundle: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bundle cannot be unpacked: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bundle holds an entry that is not allowed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bundle holds more than %1 entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bundle is damaged: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bundle is larger than %1 MB when unpacked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not a zip archive or is cut off</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Generic</name>
    <message>
        <source> m</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>#</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-bit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1.Common</source>
        <translation>Common</translation>
    </message>
    <message>
        <source>2.Experiment</source>
        <translation>Experiment</translation>
    </message>
    <message>
        <source>3.Detection</source>
        <translation>Detection</translation>
    </message>
    <message>
        <source>Average value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Avg.speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot start because</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ChangeLog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ColorTheme</source>
        <translation>Color theme</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Developers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dispersion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DurationSeconds</source>
        <translation>Duration</translation>
    </message>
    <message>
        <source>ExportBehavior</source>
        <translation>On export</translation>
    </message>
    <message>
        <source>Fall speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index</source>
        <translation>#</translation>
    </message>
    <message>
        <source>Infinite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interval</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loops</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MaxTrailDetectionSeconds</source>
        <translation>Max trail detection</translation>
    </message>
    <message>
        <source>MinDetectionSeconds</source>
        <translation>Min detection time</translation>
    </message>
    <message>
        <source>N</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open API in browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open app manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open change log</source>
        <translation>Open changelog</translation>
    </message>
    <message>
        <source>Other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rodent</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>RodentMode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RotationDimension</source>
        <translation>Dimension</translation>
    </message>
    <message>
        <source>Rotations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Script editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ShowIR</source>
        <translation>Show IR values</translation>
    </message>
    <message>
        <source>Spinbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard deviation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>StartMaximized</source>
        <translation>Start maximized</translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>To translate the app to the other language a restart is required. 
Restart now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>built on </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cm/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>km/h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>m</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>m/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mA</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rot.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rpm</source>
        <translation>RPM</translation>
    </message>
    <message>
        <source>rps</source>
        <translation>RPS</translation>
    </message>
    <message>
        <source>s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>these apps are already running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this app is already running</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyValueTableWidget</name>
    <message>
        <source>Key/Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyValueWidget</name>
    <message>
        <source>+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Значение</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Ключ</source>
        <translation>Key</translation>
    </message>
    <message>
        <source>Новый</source>
        <translation>New</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Записи</source>
        <translation>Records</translation>
    </message>
    <message>
        <source>Настройки</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>О программе</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Устройство</source>
        <translation>Device</translation>
    </message>
</context>
<context>
    <name>MultilineKeyValueTable</name>
    <message>
        <source>Define different key!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key already exists!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NewVersionChecker</name>
    <message>
        <source>Click to download new version</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OutputSpeedDimension</name>
    <message>
        <source>CentimetersPerSecond</source>
        <translation>cm/s</translation>
    </message>
    <message>
        <source>KilometersPerHour</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>MetersPerSecond</source>
        <translation>m/s</translation>
    </message>
    <message>
        <source>RotationsPerMinute</source>
        <translation>RPM</translation>
    </message>
    <message>
        <source>RotationsPerSecond</source>
        <translation>RPS</translation>
    </message>
</context>
<context>
    <name>PageAbout</name>
    <message>
        <source>Анна Образцова</source>
        <translation>Anna Obraztsova</translation>
    </message>
    <message>
        <source>Елена Шаблонова</source>
        <translation>Elena Shablonova</translation>
    </message>
    <message>
        <source>Иван Примеров</source>
        <translation>Ivan Primerov</translation>
    </message>
    <message>
        <source>Мария Условная</source>
        <translation>Maria Uslovnaya</translation>
    </message>
    <message>
        <source>ООО «Лаборатория Примерова»</source>
        <translation>Primerov Laboratory LLC</translation>
    </message>
    <message>
        <source>Олег Тестов</source>
        <translation>Oleg Testov</translation>
    </message>
    <message>
        <source>Пётр Вымыслов</source>
        <translation>Pyotr Vymyslov</translation>
    </message>
</context>
<context>
    <name>PageDatabase</name>
    <message>
        <source>Cannot rename experiment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Experiment title cannot be empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export to spreadsheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open in explorer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reload records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove experiment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove experiments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove selected experiment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This title is already used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>selected experiments</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PortRows</name>
    <message>
        <source>No serial ports found</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QTableWidgetWithCopyPaste</name>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid clipboard data, incorrect number of columns.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid clipboard data, unable to perform paste operation.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RodentMode</name>
    <message>
        <source>Mice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rats</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SampleScripts</name>
    <message>
        <source>Accelerating 4 to 30 rpm in 300 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accelerating 4 to 30 rpm in 300 s after 10 s at 4 rpm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accelerating 4 to 30 rpm in 60 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accelerating 4 to 30 rpm, slope of 4 to 40 in 300 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accelerating 5 to 25 rpm in 180 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Constant 12 rpm for 60 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Constant 16 rpm for 60 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Constant 20 rpm for 60 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Constant 4 rpm for 300 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Constant 5 rpm for 60 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rats, steps of 3 rpm every 10 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steps of 5 rpm every 30 s</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsWithLanguage</name>
    <message>
        <source>Language will be changed on program restart</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShelterAction</name>
    <message>
        <source>Curcuit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShelterSide</name>
    <message>
        <source>Both</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShelterSideness</name>
    <message>
        <source>LeftSide</source>
        <translation>Left side</translation>
    </message>
    <message>
        <source>RightSide</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpecialPropertyView</name>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Любой файл</source>
        <translation>Any file</translation>
    </message>
</context>
<context>
    <name>SpeedScriptEditor</name>
    <message>
        <source>Add sample scripts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change script title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clone script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter new cloned script title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter new script title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Incorrect script title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Script name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Script removal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Script title cannot be empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Script with this title already exists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to add sample scripts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to clone script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to remove file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to rename script</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpeedScriptSelectAndRunWidget</name>
    <message>
        <source>Cycle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop script</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpeedScriptViewer</name>
    <message>
        <source>By default the marker positions are rounded to whole numbers (seconds and RPM).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click the line or markers,<byte value="xd"/>
hold and drag to desired position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If a more accurate position handling is required press and hold the &apos;SHIFT&apos; key while dragging markers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Script editing information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed graph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To create a new marker press anywhere on the blue line and drag the new marker to desired position.&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To remove a marker: &lt;ul style=&quot;margin: 0&quot;&gt;&lt;li&gt;Press &apos;ALT&apos; on the keyboard and click the marker&lt;br&gt;&lt;em&gt;or&lt;/em&gt;&lt;/li&gt;&lt;li&gt;Move the marker and join it with another marker&lt;/li&gt;&lt;/ul&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpinbarController</name>
    <message>
        <source>Device is not connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Electric grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual control</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Включите силовое питание</source>
        <translation>Plug in the power cable</translation>
    </message>
    <message>
        <source>Вращение включено</source>
        <translation>Rotating</translation>
    </message>
    <message>
        <source>Вращение не осуществляется</source>
        <translation>No rotation at the moment</translation>
    </message>
    <message>
        <source>Выключить вращение</source>
        <translation>Stop rotation</translation>
    </message>
    <message>
        <source>Выключить электросетку</source>
        <translation>Turn off electic grid</translation>
    </message>
    <message>
        <source>Калибровка</source>
        <translation>Calibration</translation>
    </message>
    <message>
        <source>Калибровка в процессе</source>
        <translation>Calibration in progress</translation>
    </message>
    <message>
        <source>Калибровка датчиков</source>
        <translation>Calibrate sensors</translation>
    </message>
    <message>
        <source>Нажмите &quot;Начать&quot; и дождитесь окончания калибровки</source>
        <translation>Press &quot;Begin&quot; and wait for calibration to finish</translation>
    </message>
    <message>
        <source>Не помещайте грызунов на барабан</source>
        <translation>Do not place the rodent inside</translation>
    </message>
    <message>
        <source>Поместите барабан для крыс</source>
        <translation>Place the rod for rats</translation>
    </message>
    <message>
        <source>Поместите барабан для мышей</source>
        <translation>Place the rod for mice</translation>
    </message>
    <message>
        <source>Спинбар и силовое питание подключено</source>
        <translation>Spinbar and power supply are connected</translation>
    </message>
    <message>
        <source>Спинбар найден, но силовое питание не подключено</source>
        <translation>Spinbar not found, but the power supply in not</translation>
    </message>
    <message>
        <source>Спинбар не найден</source>
        <translation>Spinbar not found</translation>
    </message>
    <message>
        <source>Электрическая сетка не включена</source>
        <translation>Electric grid is off</translation>
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
        <translation>σ</translation>
    </message>
    <message>
        <source>D</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>M</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpinbarWriterWidget</name>
    <message>
        <source>Current coefficient, mA - max current for the 255 value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CurrentCoeff</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device writer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generate serial number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motor acceleration coeffient, RPM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motor calibration coeffient - a multiplier of speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motor deceleration coeffient, RPM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MotorAcc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MotorCoeff</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MotorDec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refill the list of ports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SN:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial number in format &apos;B4YYMMBNN&apos; where:
&apos;YY&apos; - year code,
&apos;MM&apos;-month code,
&apos;B&apos; - batch code,
&apos;NN&apos; - number in batch
(e.g. &apos;B2403101&apos; was built in March, 2024 first in first batch)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial number is generated as follows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial number should start with &apos;B&apos;, continue?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for previous transaction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for Spinbar, version 4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for batch number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for current month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for current year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for the number of device in the batch</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ToolRun</name>
    <message>
        <source>The tool could not be started: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tool crashed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tool ended with the code %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tool was silent for too long and was stopped</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>

#include "service/firmwaretarget.h"

#include "rows.h"

using namespace Qt::StringLiterals;

using Kind = FirmwareTarget::Kind;

Q_DECLARE_METATYPE(FirmwareTarget::Kind)

class TestFirmwareTarget : public QObject
{
    Q_OBJECT

private slots:
    void findsEachRolesFirstFile_data()
    {
        const auto row =
            columns<Kind, QString, QString, QStringList, QString>("kind", "tool", "suffix", "paths", "found");
        const QString exe = u".exe"_s;
        const QString own = u"self-avrdude.exe"_s;
        row("whole", Kind::Avr, own, exe, {u"f/a.conf"_s, u"f/avrdude.exe"_s, u"f/x.hex"_s},
            u"avrdude.exe=f/avrdude.exe conf=f/a.conf hex=f/x.hex"_s);
        row("no exe here", Kind::Avr, own, {}, {u"f/avrdude"_s, u"f/avrdude.conf"_s, u"f/sub/x.hex"_s},
            u"avrdude.exe=f/avrdude conf=f/avrdude.conf hex=f/sub/x.hex"_s);
        row("the tool lies deeper", Kind::Avr, own, {}, {u"f/a.conf"_s, u"f/bin/avrdude"_s, u"f/x.hex"_s},
            u"conf=f/a.conf hex=f/x.hex"_s);
        row("no conf, two images, other case", Kind::Avr, u"avrdude"_s, exe,
            {u"f/A.CONF"_s, u"f/first.hex"_s, u"f/second.hex"_s}, u"hex=f/first.hex"_s);
        row("one file meets two", Kind::Avr, u"avrdude"_s, exe, {u"f/a.conf.hex"_s}, u"conf=f/a.conf.hex"_s);
        row("esp32", Kind::Esp32, u"esptool"_s, exe,
            {u"f/boot_app0.bin"_s, u"f/s.ino.bin"_s, u"f/s.ino.bootloader.bin"_s,
             u"f/s.ino.partitions.bin"_s},
            u"boot_app=f/boot_app0.bin bootloader=f/s.ino.bootloader.bin ino=f/s.ino.bin "
            "partitions=f/s.ino.partitions.bin"_s);
    }

    void findsEachRolesFirstFile()
    {
        QFETCH(Kind, kind);
        QFETCH(QString, tool);
        QFETCH(QString, suffix);
        QFETCH(QStringList, paths);
        const FirmwareTarget::Files files = FirmwareTarget(kind, tool, suffix).findFiles(u"f"_s, paths);
        QStringList found;
        for (const auto &[role, path] : files.asKeyValueRange())
            found += role + u'=' + path;
        QTEST(found.join(u' '), "found");
    }

    void commandLineIsExact_data()
    {
        const auto row = columns<Kind, QString, QString, QString>("kind", "tool", "suffix", "line");
        row("avr", Kind::Avr, u"self-avrdude.exe"_s, u".exe"_s,
            uR"("w/avrdude.exe" "-Cw/a b.conf" -v -V -patmega2560 -cwiring "-PCOM7" )"
            R"(-b115200 -D -Uflash:w:w/x.hex:i)"_s);
        row("esp32, a tool of the system", Kind::Esp32, u"esptool.exe"_s, {},
            uR"("esptool" --chip esp32 --port "COM7" --baud 1500000 --before default_reset --after )"
            R"(hard_reset write_flash -z --flash_mode dio --flash_freq 80m --flash_size 4MB 0x1000 )"
            R"("w/boot" 0x8000 "w/part" 0xe000 "w/app" 0x10000 "w/ino")"_s);
    }

    void commandLineIsExact()
    {
        QFETCH(Kind, kind);
        QFETCH(QString, tool);
        QFETCH(QString, suffix);
        const FirmwareTarget::Files files{{u"conf"_s, u"w/a b.conf"_s},   {u"hex"_s, u"w/x.hex"_s},
                                          {u"bootloader"_s, u"w/boot"_s}, {u"partitions"_s, u"w/part"_s},
                                          {u"boot_app"_s, u"w/app"_s},    {u"ino"_s, u"w/ino"_s}};
        QTEST(FirmwareTarget(kind, tool, suffix).commandLine(u"w"_s, files, u"COM7"_s), "line");
    }
};

QTEST_GUILESS_MAIN(TestFirmwareTarget)
#include "tst_firmwaretarget.moc"

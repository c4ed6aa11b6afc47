#include "service/firmwaretarget.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto OwnToolPrefix = "self-"_L1;
constexpr auto ExeSuffix = ".exe"_L1;

QString quoted(const QString &text)
{
    return u'"' + text + u'"';
}

QStringList avrArguments(const FirmwareTarget::Files &files, const QString &port)
{
    return {quoted("-C"_L1 + files.value(u"conf"_s)),
            u"-v"_s,
            u"-V"_s,
            u"-patmega2560"_s,
            u"-cwiring"_s,
            quoted("-P"_L1 + port),
            u"-b115200"_s,
            u"-D"_s,
            "-Uflash:w:"_L1 + files.value(u"hex"_s) + ":i"_L1};
}

QStringList esp32Arguments(const FirmwareTarget::Files &files, const QString &port)
{
    return {u"--chip"_s,       u"esp32"_s,
            u"--port"_s,       quoted(port),
            u"--baud"_s,       u"1500000"_s,
            u"--before"_s,     u"default_reset"_s,
            u"--after"_s,      u"hard_reset"_s,
            u"write_flash"_s,  u"-z"_s,
            u"--flash_mode"_s, u"dio"_s,
            u"--flash_freq"_s, u"80m"_s,
            u"--flash_size"_s, u"4MB"_s,
            u"0x1000"_s,       quoted(files.value(u"bootloader"_s)),
            u"0x8000"_s,       quoted(files.value(u"partitions"_s)),
            u"0xe000"_s,       quoted(files.value(u"boot_app"_s)),
            u"0x10000"_s,      quoted(files.value(u"ino"_s))};
}

} // namespace

bool ExpectedFile::isMetBy(const QString &path) const
{
    return wholePath ? path == part : path.contains(part);
}

FirmwareTarget::FirmwareTarget(Kind kind, const QString &tool, const QString &executableSuffix)
    : m_tool(tool)
    , m_suffix(executableSuffix)
    , m_kind(kind)
{}

QList<ExpectedFile> FirmwareTarget::expectedFiles(const QString &folder) const
{
    QList<ExpectedFile> files;
    if (m_kind == Kind::Avr)
        files = {{u".conf"_s, u"conf"_s}, {u".hex"_s, u"hex"_s}};
    else
        files = {{u".ino.bin"_s, u"ino"_s},
                 {u".ino.bootloader.bin"_s, u"bootloader"_s},
                 {u"boot_app0.bin"_s, u"boot_app"_s},
                 {u"ino.partitions.bin"_s, u"partitions"_s}};
    if (hasOwnTool()) {
        const QString role = QString(m_tool).remove(OwnToolPrefix);
        files.append(m_suffix.isEmpty() ? ExpectedFile{program(folder), role, true}
                                        : ExpectedFile{m_suffix, role});
    }
    std::sort(files.begin(), files.end(),
              [](const ExpectedFile &a, const ExpectedFile &b) { return a.part < b.part; });
    return files;
}

FirmwareTarget::Files FirmwareTarget::findFiles(const QString &folder, QStringList paths) const
{
    Files found;
    for (const ExpectedFile &expected : expectedFiles(folder)) {
        const auto path = std::find_if(paths.cbegin(), paths.cend(),
                                       [&](const QString &candidate) { return expected.isMetBy(candidate); });
        if (path == paths.cend())
            continue;
        found.insert(expected.role, *path);
        paths.erase(path);
    }
    return found;
}

QStringList FirmwareTarget::fileTypes() const
{
    QStringList types;
    for (const ExpectedFile &file : expectedFiles({})) {
        if (!file.wholePath)
            types += file.part.section(u'.', -1);
    }
    return types;
}

bool FirmwareTarget::hasOwnTool() const
{
    return m_tool.contains(OwnToolPrefix);
}

QString FirmwareTarget::program(const QString &folder) const
{
    QString program = m_tool;
    if (program.startsWith(OwnToolPrefix))
        program.replace(0, OwnToolPrefix.size(), folder + u'/');
    if (program.endsWith(ExeSuffix, Qt::CaseInsensitive))
        program = program.chopped(ExeSuffix.size()) + m_suffix;
    return program;
}

QStringList FirmwareTarget::arguments(const Files &files, const QString &port) const
{
    return m_kind == Kind::Avr ? avrArguments(files, port) : esp32Arguments(files, port);
}

QString FirmwareTarget::commandLine(const QString &folder, const Files &files, const QString &port) const
{
    return quoted(program(folder)) + u' ' + arguments(files, port).join(u' ');
}

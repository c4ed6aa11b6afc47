#include "cli/clitext.h"
#include "cli/command.h"
#include "cli/tableoutput.h"
#include "device/serialports.h"

#include <QCommandLineParser>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

// The instrument of the present day speaks text.
constexpr bool TextProtocol = true;

Table portTable(const QList<PortInfo> &ports)
{
    Table table{{Cli::tr("Name"), Cli::tr("Location"), Cli::tr("Description"), Cli::tr("Manufacturer"),
                 Cli::tr("Tried")}};
    for (const PortInfo &port : ports) {
        table.append({port.name, port.location, port.description, port.manufacturer,
                      SerialPorts::isCandidate(port, TextProtocol) ? Cli::tr("yes") : Cli::tr("no")});
    }
    return table;
}

QJsonArray portsJson(const QList<PortInfo> &ports)
{
    QJsonArray array;
    for (const PortInfo &port : ports) {
        array.append(QJsonObject{{u"name"_s, port.name},
                                 {u"location"_s, port.location},
                                 {u"description"_s, port.description},
                                 {u"manufacturer"_s, port.manufacturer},
                                 {u"candidate"_s, SerialPorts::isCandidate(port, TextProtocol)}});
    }
    return array;
}

} // namespace

ExitCode runPorts(CommandContext &context, const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Lists the serial ports and whether the link would try each."_s);
    const QCommandLineOption json(u"json"_s, u"Prints JSON."_s);
    parser.addOption(json);
    if (const auto ended = parseArguments(parser, context, u"ports"_s, arguments))
        return *ended;
    if (!parser.positionalArguments().isEmpty())
        return wrongUsage(context, Cli::tr("'ports' takes no further words"));
    const QList<PortInfo> ports = SerialPorts::listed();
    if (parser.isSet(json))
        printJson(context.out, portsJson(ports));
    else
        printTable(context.out, portTable(ports));
    return ExitCode::Done;
}

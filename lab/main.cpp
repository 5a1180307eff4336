// ovra-lab: the lab view. Subscribes to the furnaces' topics on an MQTT broker, keeps their
// states and firing records, and serves them to browsers on the lab network. The same binary
// serves one furnace on its board or every furnace on a lab server.

#include "lab/eventhub.h"
#include "lab/furnaceboard.h"
#include "lab/labserver.h"
#include "lab/labservice.h"
#include "lab/labstore.h"
#include "lab/mqttlink.h"
#include "lab/payloads.h"
#include "lab/webhook.h"

#include <QCommandLineParser>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QSocketNotifier>
#include <QUrl>

#include <mosquitto.h>

#include <csignal>
#include <cstdio>
#include <memory>
#include <sys/socket.h>
#include <unistd.h>

namespace {

int signalPipe[2] = {-1, -1};

void OnSignal(int)
{
    const char byte = 1;
    [[maybe_unused]] const ssize_t n = ::write(signalPipe[1], &byte, 1);
}

int Usage(const QString &message)
{
    std::fprintf(stderr, "ovra-lab: %s (see --help)\n", qPrintable(message));
    return 2;
}

// "HOST:PORT" with a port in 1..65535 (0 allowed where `anyPort`).
bool HostPort(const QString &text, QString *host, int *port, bool anyPort)
{
    const int colon = text.lastIndexOf(QLatin1Char(':'));
    if (colon <= 0)
        return false;
    bool ok = false;
    *host = text.left(colon);
    if (host->startsWith(QLatin1Char('[')) && host->endsWith(QLatin1Char(']')))
        *host = host->mid(1, host->size() - 2);
    *port = text.mid(colon + 1).toInt(&ok);
    return ok && *port >= (anyPort ? 0 : 1) && *port <= 65535;
}

bool TokenName(const QString &name)
{
    return ovra::Lab::Payloads::ValidId(name);
}

int Tokens(const QCommandLineParser &parser, const QString &dir)
{
    ovra::Lab::LabStore store(dir);
    QString error;
    if (!store.Open(&error)) {
        std::fprintf(stderr, "ovra-lab: %s\n", qPrintable(error));
        return 1;
    }
    if (parser.isSet(QStringLiteral("add-token"))) {
        const QString name = parser.value(QStringLiteral("add-token"));
        if (!TokenName(name))
            return Usage(QStringLiteral("a token's name is 1 to 64 letters, digits, '-' or '_'"));
        const QString token = store.AddToken(name, &error);
        if (token.isEmpty()) {
            std::fprintf(stderr, "ovra-lab: %s\n", qPrintable(error));
            return 1;
        }
        std::printf("%s\n", qPrintable(token));
    } else if (parser.isSet(QStringLiteral("revoke-token"))) {
        if (!store.RevokeToken(parser.value(QStringLiteral("revoke-token")))) {
            std::fprintf(stderr, "ovra-lab: no token of that name\n");
            return 1;
        }
    } else {
        for (const ovra::Lab::TokenInfo &token : store.Tokens())
            std::printf("%s\t%s\n", qPrintable(token.name), qPrintable(token.created));
    }
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    qSetMessagePattern(QStringLiteral("%{if-warning}warning: %{endif}%{if-critical}error: %{endif}%{message}"));
    // The token commands run from a shell or the panel's user and need no fonts.
    bool serving = true;
    for (int i = 1; i < argc; ++i) {
        for (const char *command :
             {"--add-token", "--revoke-token", "--list-tokens", "--help", "-h", "--version", "-v"})
            serving = serving && qstrcmp(argv[i], command) != 0;
    }
    std::unique_ptr<QCoreApplication> app;
    if (serving) {
        // The reports need fonts, never a display: a lab server has none. Qt wants a private
        // runtime folder even offscreen; a service started without one keeps it beside its data.
        qputenv("QT_QPA_PLATFORM", "offscreen");
        for (int i = 1; qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR") && i + 1 < argc; ++i) {
            if (qstrcmp(argv[i], "--data") == 0) {
                const QString dir = QDir(QFile::decodeName(argv[i + 1])).absoluteFilePath(QStringLiteral(".runtime"));
                if (QDir().mkpath(dir) &&
                    QFile::setPermissions(dir, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner))
                    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(dir));
            }
        }
        app = std::make_unique<QGuiApplication>(argc, argv);
    } else {
        app = std::make_unique<QCoreApplication>(argc, argv);
    }
    QCoreApplication::setApplicationName(QStringLiteral("ovra-lab"));
    QCoreApplication::setApplicationVersion(QStringLiteral(OVRA_VERSION_TEXT));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("The lab view: furnaces' states and firing records on the lab network."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({
        {QStringLiteral("broker"), QStringLiteral("MQTT broker (default 127.0.0.1:1883)."), QStringLiteral("HOST:PORT"),
         QStringLiteral("127.0.0.1:1883")},
        {QStringLiteral("listen"), QStringLiteral("Address to serve on (default 127.0.0.1:8080)."),
         QStringLiteral("ADDR:PORT"), QStringLiteral("127.0.0.1:8080")},
        {QStringLiteral("data"), QStringLiteral("Folder of the records and tokens."), QStringLiteral("DIR")},
        {QStringLiteral("tls-cert"), QStringLiteral("Certificate (PEM): serve HTTPS."), QStringLiteral("FILE")},
        {QStringLiteral("tls-key"), QStringLiteral("Private key (PEM) of the certificate."), QStringLiteral("FILE")},
        {QStringLiteral("webhook"), QStringLiteral("POST every event as JSON to URL."), QStringLiteral("URL")},
        {QStringLiteral("add-token"), QStringLiteral("Print a new pairing token for NAME and exit."),
         QStringLiteral("NAME")},
        {QStringLiteral("revoke-token"), QStringLiteral("Revoke the token NAME and exit."), QStringLiteral("NAME")},
        {QStringLiteral("list-tokens"), QStringLiteral("List the tokens' names and creation times and exit.")},
    });
    if (!parser.parse(QCoreApplication::arguments()))
        return Usage(parser.errorText());
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp(0);
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();
    if (!parser.positionalArguments().isEmpty())
        return Usage(QStringLiteral("unexpected argument %1").arg(parser.positionalArguments().constFirst()));
    const QString dir = parser.value(QStringLiteral("data"));
    if (dir.isEmpty())
        return Usage(QStringLiteral("--data DIR is required"));
    const int tokenCommands = int(parser.isSet(QStringLiteral("add-token"))) +
                              int(parser.isSet(QStringLiteral("revoke-token"))) +
                              int(parser.isSet(QStringLiteral("list-tokens")));
    if (tokenCommands > 1)
        return Usage(QStringLiteral("one token command at a time"));
    if (tokenCommands == 1)
        return Tokens(parser, dir);

    ovra::Lab::ListenOptions listen;
    QString brokerHost;
    int brokerPort = 0;
    if (!HostPort(parser.value(QStringLiteral("broker")), &brokerHost, &brokerPort, false))
        return Usage(QStringLiteral("--broker wants HOST:PORT"));
    if (!HostPort(parser.value(QStringLiteral("listen")), &listen.address, &listen.port, true))
        return Usage(QStringLiteral("--listen wants ADDR:PORT"));
    listen.certificate = parser.value(QStringLiteral("tls-cert"));
    listen.key = parser.value(QStringLiteral("tls-key"));
    if (listen.certificate.isEmpty() != listen.key.isEmpty())
        return Usage(QStringLiteral("--tls-cert and --tls-key go together"));
    QUrl webhookUrl;
    if (parser.isSet(QStringLiteral("webhook"))) {
        webhookUrl = QUrl(parser.value(QStringLiteral("webhook")), QUrl::StrictMode);
        if (!webhookUrl.isValid() ||
            (webhookUrl.scheme() != QLatin1String("http") && webhookUrl.scheme() != QLatin1String("https")))
            return Usage(QStringLiteral("--webhook wants an http or https URL"));
    }

    ovra::Lab::LabStore store(dir);
    QString error;
    if (!store.Open(&error)) {
        std::fprintf(stderr, "ovra-lab: %s\n", qPrintable(error));
        return 1;
    }

    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, signalPipe) != 0)
        return 1;
    QSocketNotifier signalNotifier(signalPipe[0], QSocketNotifier::Read);
    QObject::connect(&signalNotifier, &QSocketNotifier::activated, app.get(), &QCoreApplication::quit);
    std::signal(SIGTERM, OnSignal);
    std::signal(SIGINT, OnSignal);
    std::signal(SIGPIPE, SIG_IGN);

    mosquitto_lib_init();
    int status = 0;
    {
        ovra::Lab::FurnaceBoard board;
        ovra::Lab::EventHub hub(listen.maxStreams);
        std::unique_ptr<ovra::Lab::Webhook> webhook;
        if (webhookUrl.isValid())
            webhook = std::make_unique<ovra::Lab::Webhook>(webhookUrl);
        ovra::Lab::LabService service(&store, &board, &hub, webhook.get());
        // One persistent session per data folder: records sent while the service was down follow.
        const QString clientId =
            QStringLiteral("ovra-lab-") +
            QString::fromLatin1(QCryptographicHash::hash(QDir(dir).absolutePath().toUtf8(), QCryptographicHash::Sha256)
                                    .toHex()
                                    .left(12));
        ovra::Lab::MqttLink link(brokerHost, brokerPort, clientId);
        QObject::connect(&link, &ovra::Lab::MqttLink::Message, &service, &ovra::Lab::LabService::Message);
        ovra::Lab::LabServer server(&store, &board, &hub);
        if (!server.Start(listen, &error) || !link.Start(&error)) {
            std::fprintf(stderr, "ovra-lab: %s\n", qPrintable(error));
            status = 1;
        } else {
            QCoreApplication::exec();
            qInfo().noquote() << "lab: stopping";
        }
        server.Stop();
        link.Stop();
    }
    store.CloseThisThread();
    mosquitto_lib_cleanup();
    return status;
}

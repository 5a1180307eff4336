#include "lab/labserver.h"

#include "lab/eventhub.h"
#include "lab/furnaceboard.h"
#include "lab/labstore.h"
#include "lab/payloads.h"
#include "lab/recordreport.h"

#include <QDateTime>
#include <QDebug>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRegularExpression>

#include <httplib.h>

namespace ovra {
namespace Lab {

namespace {
constexpr char jsonType[] = "application/json";
constexpr char sessionCookie[] = "ovra_session";

QByteArray TypeOf(const QString &name)
{
    static const QHash<QString, QByteArray> types = {{QStringLiteral("html"), "text/html; charset=utf-8"},
                                                     {QStringLiteral("js"), "text/javascript; charset=utf-8"},
                                                     {QStringLiteral("css"), "text/css; charset=utf-8"},
                                                     {QStringLiteral("json"), "application/json"},
                                                     {QStringLiteral("svg"), "image/svg+xml"},
                                                     {QStringLiteral("png"), "image/png"},
                                                     {QStringLiteral("ico"), "image/x-icon"},
                                                     {QStringLiteral("txt"), "text/plain; charset=utf-8"},
                                                     {QStringLiteral("woff2"), "font/woff2"},
                                                     {QStringLiteral("webmanifest"), "application/manifest+json"}};
    return types.value(QFileInfo(name).suffix().toLower(), "application/octet-stream");
}

void Json(httplib::Response &response, int status, const QByteArray &body)
{
    response.status = status;
    response.set_content(body.constData(), static_cast<size_t>(body.size()), jsonType);
}

void Error(httplib::Response &response, int status, const char *error)
{
    Json(response, status, QByteArrayLiteral("{\"error\":\"") + error + "\"}");
}

QString Param(const httplib::Request &request, const char *name)
{
    return QString::fromStdString(request.get_param_value(name));
}

// The session a request presents: a bearer token, else the pairing cookie; empty for none.
QString Credential(const httplib::Request &request)
{
    const std::string authorization = request.get_header_value("Authorization");
    if (authorization.rfind("Bearer ", 0) == 0)
        return QString::fromStdString(authorization.substr(7)).trimmed();
    const QString cookies = QString::fromStdString(request.get_header_value("Cookie"));
    for (const QString &cookie : cookies.split(QLatin1Char(';'))) {
        const QString c = cookie.trimmed();
        if (c.startsWith(QLatin1String(sessionCookie) + QLatin1Char('=')))
            return c.mid(int(sizeof sessionCookie));
    }
    return {};
}

qint64 Now()
{
    return QDateTime::currentMSecsSinceEpoch();
}
} // namespace

LabServer::LabServer(LabStore *store, FurnaceBoard *board, EventHub *hub) : m_store(store), m_board(board), m_hub(hub)
{
    // Read once: requests are answered from memory and never from the file system.
    QDirIterator it(QStringLiteral(":/web"), QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            m_files.insert(path.mid(6), {file.readAll(), TypeOf(path)});
    }
}

LabServer::~LabServer()
{
    Stop();
}

bool LabServer::Session(const httplib::Request &request) const
{
    return m_store->TokenValid(Credential(request));
}

void LabServer::Unauthorized(const httplib::Request &request, httplib::Response &response)
{
    // Only a presented credential is a guess; a first visit without one is not counted.
    if (!Credential(request).isEmpty() || request.path == "/pair")
        m_limiter.Fail(QString::fromStdString(request.remote_addr), Now());
    if (request.path == "/") {
        const File pair = m_files.value(QStringLiteral("pair.html"));
        response.status = 401;
        response.set_content(pair.data.constData(), static_cast<size_t>(pair.data.size()), pair.type.constData());
        return;
    }
    Error(response, 401, "unauthorized");
}

void LabServer::Routes()
{
    httplib::Server &server = *m_server;
    server.set_default_headers(
        {{"X-Content-Type-Options", "nosniff"},
         {"Referrer-Policy", "no-referrer"},
         {"X-Frame-Options", "DENY"},
         {"Cache-Control", "no-store"},
         {"Content-Security-Policy", "default-src 'self'; style-src 'self' 'unsafe-inline'; img-src 'self' data:; "
                                     "frame-ancestors 'none'; form-action 'self'"}});

    server.set_pre_routing_handler([this](const httplib::Request &request, httplib::Response &response) {
        if (request.method != "GET" && request.method != "HEAD") {
            response.set_header("Allow", "GET, HEAD");
            Error(response, 405, "method not allowed");
            return httplib::Server::HandlerResponse::Handled;
        }
        if (m_limiter.Blocked(QString::fromStdString(request.remote_addr), Now())) {
            response.set_header("Retry-After", "60");
            Error(response, 429, "too many attempts");
            return httplib::Server::HandlerResponse::Handled;
        }
        if (request.path == "/pair" || Session(request))
            return httplib::Server::HandlerResponse::Unhandled;
        Unauthorized(request, response);
        return httplib::Server::HandlerResponse::Handled;
    });

    server.Get("/pair", [this](const httplib::Request &request, httplib::Response &response) {
        const QString token = Param(request, "token");
        if (!m_store->TokenValid(token)) {
            Unauthorized(request, response);
            return;
        }
        std::string cookie = std::string(sessionCookie) + "=" + token.toStdString() +
                             "; HttpOnly; SameSite=Strict; Path=/; Max-Age=31536000";
        if (m_secure)
            cookie += "; Secure";
        response.set_header("Set-Cookie", cookie);
        response.set_redirect("/", 303);
    });

    server.Get("/api/furnaces",
               [this](const httplib::Request &, httplib::Response &response) { Json(response, 200, m_board->List()); });

    server.Get("/api/firings", [this](const httplib::Request &request, httplib::Response &response) {
        static const QRegularExpression day(QStringLiteral("\\A\\d{4}-\\d{2}-\\d{2}\\z"));
        FiringQuery query;
        query.furnace = Param(request, "furnace");
        query.result = Param(request, "result");
        query.job = Param(request, "job");
        query.from = Param(request, "from");
        query.to = Param(request, "to");
        bool ok = true;
        if (request.has_param("limit"))
            query.limit = Param(request, "limit").toInt(&ok);
        if (!ok || query.limit < 1 || query.limit > 10000 ||
            (!query.from.isEmpty() && !day.match(query.from).hasMatch()) ||
            (!query.to.isEmpty() && !day.match(query.to).hasMatch())) {
            Error(response, 400, "bad query");
            return;
        }
        Json(response, 200, QJsonDocument(m_store->Firings(query)).toJson(QJsonDocument::Compact));
    });

    server.Get(R"(/api/firings/([A-Za-z0-9_-]{1,64})(\.pdf|\.csv)?)", [this](const httplib::Request &request,
                                                                             httplib::Response &response) {
        const QString id = QString::fromStdString(request.matches[1]);
        const std::string format = request.matches[2];
        const QJsonObject record = m_store->Record(id);
        if (record.isEmpty()) {
            Error(response, 404, "not found");
            return;
        }
        const std::string file = "firing-" + id.toStdString();
        if (format == ".pdf") {
            QString error;
            const QByteArray pdf = RecordReport::Pdf(record, &error);
            if (pdf.isEmpty()) {
                qWarning().noquote() << "lab: cannot make the report:" << error;
                Error(response, 500, "no report");
                return;
            }
            response.set_header("Content-Disposition", "inline; filename=\"" + file + ".pdf\"");
            response.set_content(pdf.constData(), static_cast<size_t>(pdf.size()), "application/pdf");
        } else if (format == ".csv") {
            const QByteArray csv = RecordReport::Csv(record);
            response.set_header("Content-Disposition", "attachment; filename=\"" + file + "-samples.csv\"");
            response.set_content(csv.constData(), static_cast<size_t>(csv.size()), "text/csv; charset=utf-8");
        } else {
            Json(response, 200, QJsonDocument(record).toJson(QJsonDocument::Compact));
        }
    });

    server.Get("/api/events", [this](const httplib::Request &, httplib::Response &response) {
        if (!m_hub->OpenStream()) {
            Error(response, 503, "too many event streams");
            return;
        }
        struct Stream
        {
            std::uint64_t cursor;
            bool greeted = false;
            std::chrono::steady_clock::time_point written = std::chrono::steady_clock::now();
        };
        auto stream = std::make_shared<Stream>(Stream{m_hub->Head()});
        EventHub *hub = m_hub;
        response.set_header("X-Accel-Buffering", "no");
        response.set_chunked_content_provider(
            "text/event-stream",
            [hub, stream](size_t, httplib::DataSink &sink) {
                std::string out;
                if (!stream->greeted) {
                    out = "retry: 3000\n: ovra-lab\n\n";
                    stream->greeted = true;
                } else if (!hub->Wait(&stream->cursor, &out, std::chrono::milliseconds(500))) {
                    sink.done();
                    return true;
                }
                const auto now = std::chrono::steady_clock::now();
                if (out.empty() && now - stream->written >= std::chrono::seconds(15))
                    out = ": keep-alive\n\n";
                if (out.empty())
                    return true;
                stream->written = now;
                return sink.write(out.data(), out.size());
            },
            [hub](bool) { hub->CloseStream(); });
    });

    server.Get("/api/.*",
               [](const httplib::Request &, httplib::Response &response) { Error(response, 404, "not found"); });

    server.Get("/(.*)", [this](const httplib::Request &request, httplib::Response &response) {
        const QString name =
            request.path == "/" ? QStringLiteral("index.html") : QString::fromStdString(request.matches[1]);
        const auto it = m_files.constFind(name);
        if (it == m_files.constEnd()) {
            Error(response, 404, "not found");
            return;
        }
        response.set_content(it->data.constData(), static_cast<size_t>(it->data.size()), it->type.constData());
    });
}

bool LabServer::Start(const ListenOptions &options, QString *error)
{
    if (!options.certificate.isEmpty() || !options.key.isEmpty()) {
        m_server = std::make_unique<httplib::SSLServer>(QFile::encodeName(options.certificate).constData(),
                                                        QFile::encodeName(options.key).constData());
        m_secure = true;
        if (!m_server->is_valid()) {
            *error =
                QStringLiteral("cannot use the certificate %1 with the key %2").arg(options.certificate, options.key);
            return false;
        }
    } else {
        m_server = std::make_unique<httplib::Server>();
    }
    // Each open event stream holds a thread; the rest serve requests.
    const size_t threads = static_cast<size_t>(options.maxStreams) + 8;
    m_server->new_task_queue = [threads] { return new httplib::ThreadPool(threads); };
    // One request a connection: an idle kept-alive connection holds a pool thread for its whole
    // wait, which would both starve the streams and keep a stopping service from exiting.
    m_server->set_keep_alive_max_count(1);
    m_server->set_read_timeout(5);
    m_server->set_write_timeout(5);
    m_server->set_payload_max_length(64 * 1024);
    Routes();

    const std::string host = options.address.toStdString();
    if (options.port == 0)
        m_port = m_server->bind_to_any_port(host);
    else
        m_port = m_server->bind_to_port(host, options.port) ? options.port : -1;
    if (m_port <= 0) {
        *error = QStringLiteral("cannot listen on %1:%2").arg(options.address).arg(options.port);
        return false;
    }
    m_thread = std::thread([this] { m_server->listen_after_bind(); });
    qInfo().noquote() << QStringLiteral("lab: listening on %1://%2:%3")
                             .arg(m_secure ? QStringLiteral("https") : QStringLiteral("http"), options.address)
                             .arg(m_port);
    return true;
}

void LabServer::Stop()
{
    m_hub->Close();
    if (m_server)
        m_server->stop();
    if (m_thread.joinable())
        m_thread.join();
}

} // namespace Lab
} // namespace ovra

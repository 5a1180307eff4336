#pragma once

#include "lab/failurelimiter.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <memory>
#include <thread>

namespace httplib {
class Server;
struct Request;
struct Response;
} // namespace httplib

namespace ovra {
namespace Lab {

class EventHub;
class FurnaceBoard;
class LabStore;

struct ListenOptions
{
    QString address = QStringLiteral("127.0.0.1");
    int port = 8080;     // 0: any free port
    QString certificate; // both set: HTTPS
    QString key;
    int maxStreams = 64;
};

// The lab view's HTTP side: the page's files from the resources under :/web/, the JSON API and
// the event stream, each behind a session (a bearer token or the pairing cookie). Runs in
// threads of its own; reads the board, the store and the hub, which are safe to share.
class LabServer
{
public:
    LabServer(LabStore *store, FurnaceBoard *board, EventHub *hub);
    ~LabServer();
    LabServer(const LabServer &) = delete;
    LabServer &operator=(const LabServer &) = delete;

    // Binds and starts serving; false with a one-line reason.
    bool Start(const ListenOptions &options, QString *error);
    // Ends the streams, stops listening and joins every server thread.
    void Stop();
    int Port() const { return m_port; }

private:
    struct File
    {
        QByteArray data;
        QByteArray type;
    };
    bool Session(const httplib::Request &request) const;
    void Unauthorized(const httplib::Request &request, httplib::Response &response);
    void Routes();

    LabStore *m_store;
    FurnaceBoard *m_board;
    EventHub *m_hub;
    FailureLimiter m_limiter;
    QHash<QString, File> m_files;
    bool m_secure = false;
    int m_port = 0;
    std::unique_ptr<httplib::Server> m_server;
    std::thread m_thread;
};

} // namespace Lab
} // namespace ovra

// Fails on purpose under the leak checker: the sanitizer run expects the report of the block
// below, so a setting that blinds the checker to our own code turns that run red.
#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QLabel>
#include <QThread>

#include <cstring>

namespace {

char *volatile g_lastBlock = nullptr;

// Not inlined, and the pointer dropped through a volatile: nothing keeps the block reachable.
__attribute__((noinline)) void PlantedLeak()
{
    char *block = new char[4096];
    std::memset(block, 0x5a, 4096);
    g_lastBlock = block;
    g_lastBlock = nullptr;
}

// Decoding a JPEG loads the image plugin and its library's dynamic TLS, on this thread.
bool RoundTripJpeg()
{
    QImage image(32, 32, QImage::Format_RGB32);
    image.fill(Qt::darkRed);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "JPEG"))
        return false;
    return !QImage::fromData(bytes, "JPEG").isNull();
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QLabel label(QStringLiteral("leak canary"));
    label.show();
    bool decoded = RoundTripJpeg();
    QThread *worker = QThread::create([&decoded] { decoded = RoundTripJpeg() && decoded; });
    worker->start();
    worker->wait();
    delete worker;
    PlantedLeak();
    return decoded ? 0 : 1;
}

// Takes a picture of a part of KWin's screen: "X,Y WIDTHxHEIGHT", and the file to write it to.
#include <QCoreApplication>
#include <QDBusInterface>
#include <QDBusReply>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QTextStream>

#include <unistd.h>

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// KWin closes its end when all is written.
QByteArray readAll(int descriptor)
{
    QFile file;
    return file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle) ? file.readAll()
                                                                              : QByteArray();
}

int refuse(const QString& reason)
{
    QTextStream(stderr) << reason << Qt::endl;
    return 1;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication app(argc, argv);
    const auto arguments = QCoreApplication::arguments();
    const auto numbers = arguments.value(1).split(QRegularExpression(u"\\D"_s));
    QDBusInterface screenShots(u"org.kde.KWin"_s, u"/org/kde/KWin/ScreenShot2"_s,
                               u"org.kde.KWin.ScreenShot2"_s);
    std::array<int, 2> ends{};
    if (numbers.size() != 4 || ::pipe(ends.data()) != 0) {
        return refuse(u"no such place"_s);
    }
    const QVariantMap options{{u"native-resolution"_s, true}};
    const QDBusReply<QVariantMap> reply = screenShots.call(
        u"CaptureArea"_s, numbers.at(0).toInt(), numbers.at(1).toInt(), numbers.at(2).toUInt(),
        numbers.at(3).toUInt(), options, QVariant::fromValue(QDBusUnixFileDescriptor(ends[1])));
    ::close(ends[1]);
    if (!reply.isValid()) {
        return refuse(reply.error().message());
    }
    const auto facts = reply.value();
    const auto bytes = readAll(ends[0]);
    const QImage picture(reinterpret_cast<const uchar*>(bytes.constData()),
                         facts.value(u"width"_s).toInt(), facts.value(u"height"_s).toInt(),
                         facts.value(u"stride"_s).toInt(),
                         QImage::Format(facts.value(u"format"_s).toInt()));
    return picture.save(arguments.value(2)) ? 0 : refuse(u"no picture has come"_s);
}

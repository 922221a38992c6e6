// Test programs whose tests drive real widgets, on no screen.

#include <QApplication>
#include <gmock/gmock.h>

#include <cstdio>

namespace {

// The platform without a screen says at each window what it cannot do.
void printMessage(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

} // namespace

int main(int argc, char *argv[])
{
    qInstallMessageHandler(printMessage);
    qputenv("QT_QPA_PLATFORM", "offscreen");
#ifdef _WIN32
    // Without a screen there are no fonts but those of a directory.
    const QByteArray fonts = qgetenv("KINOVRA_TEST_FONTS");
    qputenv("QT_QPA_FONTDIR", fonts.isEmpty() ? QByteArray("C:/Windows/Fonts") : fonts);
#endif
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}

// Draws the program's icon and the setup program's picture from the panel's own pictures. The files are kept
// with the sources, because a build needs them before it has this program. They are made again, after the
// panel's pictures have changed, by
//
//     cmake --build build/dev --target draw_pictures
//     QT_QPA_PLATFORM=offscreen build/dev/packaging/windows/draw_pictures packaging/windows

#include "views/stride_picture.h"

#include <QBuffer>
#include <QDataStream>
#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

#include <array>

namespace {

constexpr std::array<int, 9> Sides{16, 20, 24, 32, 40, 48, 64, 128, 256};
/// From this size on a picture is compressed. The smaller ones are bitmaps, which every reader of icons
/// knows.
constexpr int SmallestCompressed = 128;

QByteArray compressed(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

/// The picture as a bitmap without its file header: rows from the bottom to the top, then one bit a pixel
/// that says where nothing is drawn, in rows of whole 32 bits.
QByteArray bitmap(const QImage &image)
{
    const int side = image.width();
    const int maskRow = (side + 31) / 32 * 4;
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    // The height counts both the colours and the mask.
    out << quint32(40) << qint32(side) << qint32(2 * side) << quint16(1) << quint16(32) << quint32(0)
        << quint32(side * side * 4 + maskRow * side) << qint32(0) << qint32(0) << quint32(0) << quint32(0);
    for (int y = side - 1; y >= 0; --y) {
        for (int x = 0; x < side; ++x)
            out << quint32(image.pixel(x, y));
    }
    for (int y = side - 1; y >= 0; --y) {
        QByteArray row(maskRow, 0);
        for (int x = 0; x < side; ++x) {
            if (qAlpha(image.pixel(x, y)) == 0)
                row[x / 8] = static_cast<char>(row[x / 8] | (0x80 >> (x % 8)));
        }
        out.writeRawData(row.constData(), maskRow);
    }
    return bytes;
}

QByteArray iconFile(const QIcon &icon)
{
    QByteArray directory;
    QByteArray pictures;
    QDataStream out(&directory, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint16(0) << quint16(1) << quint16(Sides.size());
    const int start = 6 + 16 * int(Sides.size());
    for (const int side : Sides) {
        const QImage image = icon.pixmap(side, side).toImage().convertToFormat(QImage::Format_ARGB32);
        const QByteArray picture = side < SmallestCompressed ? bitmap(image) : compressed(image);
        const auto shownSide = static_cast<quint8>(side % 256); // 0 stands for 256
        out << shownSide << shownSide << quint8(0) << quint8(0) << quint16(1) << quint16(32)
            << quint32(picture.size()) << quint32(start + pictures.size());
        pictures += picture;
    }
    return directory + pictures;
}

/// The picture at the side of the setup program's last page, twice as fine as it is on a screen of 96 dpi.
QByteArray sidePicture()
{
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(0x17, 0x40, 0x6b));
    palette.setColor(QPalette::Highlight, QColor(0xff, 0xff, 0xff));
    palette.setColor(QPalette::Text, QColor(0x9c, 0xc9, 0xf0));
    QImage image(328, 628, QImage::Format_RGB888);
    QPainter painter(&image);
    views::drawStride(painter, image.rect(), palette);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "BMP");
    return bytes;
}

bool write(const QString &name, const QByteArray &bytes)
{
    QFile file(name);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush())
        return true;
    qCritical("cannot write %s: %s", qPrintable(name), qPrintable(file.errorString()));
    return false;
}

} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    if (argc != 2) {
        qCritical("usage: draw_pictures FOLDER");
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]) + QLatin1Char('/');
    const bool done = write(folder + QLatin1String("kinovra.ico"), iconFile(views::applicationIcon()))
                      && write(folder + QLatin1String("setup.bmp"), sidePicture());
    return done ? 0 : 1;
}

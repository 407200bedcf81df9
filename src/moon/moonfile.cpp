// SPDX-License-Identifier: MIT
#include "moon/moonfile.h"

#include "platform/program.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace {

constexpr qint64 largestFile = 256 << 20;  // bytes
constexpr qint64 largestPicture = 4 << 20; // pixels; larger ones are scaled down
constexpr QSize scaledSize(2048, 2048);

/// A file's bytes, which notice when more is asked for than is there: the reader
/// itself takes a bitmap whose last rows are missing for a whole one.
class WatchedBytes : public QBuffer {
public:
    explicit WatchedBytes(QByteArray* bytes) : QBuffer(bytes) {}

    bool IsWhole() const { return m_isWhole; }

    bool seek(qint64 position) override {
        m_isWhole = m_isWhole && position >= 0 && position <= size();
        return m_isWhole && QBuffer::seek(position);
    }

protected:
    qint64 readData(char* data, qint64 size) override {
        const qint64 read = QBuffer::readData(data, size);
        m_isWhole = m_isWhole && read == size;
        return read;
    }

private:
    bool m_isWhole = true;
};

QByteArray readFile(const QString& path) {
    QFile file(path);
    const QFileInfo info(path);
    if (!info.isFile() || info.size() > largestFile || !file.open(QIODevice::ReadOnly))
        return {};
    return file.read(largestFile);
}

// The height is negative where the upper row comes first.
QSize sizeFor(const QSize& size) {
    const QSizeF upright(size.width(), qAbs(qreal(size.height())));
    const bool isLarge = upright.width() * upright.height() > qreal(largestPicture);
    return isLarge ? upright.scaled(scaledSize, Qt::KeepAspectRatio).toSize().expandedTo({1, 1})
                   : QSize();
}

} // namespace

QString MoonPictureFile() {
    return ProgramFile(QStringLiteral("Moon.bmp"));
}

QImage LoadMoonPicture(const QString& path) {
    QByteArray bytes = readFile(path);
    WatchedBytes device(&bytes);
    device.open(QIODevice::ReadOnly);
    QImageReader reader(&device, "bmp");
    reader.setScaledSize(sizeFor(reader.size()));
    const QImage picture = reader.read();
    // In full colours, which scaling would otherwise reduce to a few.
    return device.IsWhole() ? picture.convertToFormat(QImage::Format_RGB32) : QImage();
}

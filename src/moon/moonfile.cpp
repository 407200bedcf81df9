// SPDX-License-Identifier: MIT
#include "moon/moonfile.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace {

constexpr qint64 largestFile = 256 << 20;   // bytes
constexpr qint64 largestPicture = 64 << 20; // pixels

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

// The height is negative where the upper row comes first.
qreal pixelsOf(const QSize& size) {
    return size.width() * qAbs(qreal(size.height()));
}

MoonFile loadFrom(QByteArray bytes) {
    WatchedBytes device(&bytes);
    device.open(QIODevice::ReadOnly);
    QImageReader reader(&device, "bmp");
    if (pixelsOf(reader.size()) > largestPicture)
        return {.isTooLarge = true};
    QImageReader::setAllocationLimit(0); // the toolkit's own is lower
    const QImage picture = reader.read();
    // In full colours, which scaling would otherwise reduce to a few.
    return {device.IsWhole() ? picture.convertToFormat(QImage::Format_RGB32) : QImage()};
}

} // namespace

MoonFile LoadMoonPicture(const QString& path) {
    QFile file(path);
    const QFileInfo info(path);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    if (info.size() > largestFile)
        return {.isTooLarge = true};
    return loadFrom(file.read(info.size()));
}

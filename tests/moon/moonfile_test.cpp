// SPDX-License-Identifier: MIT
#include "moon/moonfile.h"

#include "support/usualrights.h"
#include "support/widget_test.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QtEndian>
#include <optional>
#include <sys/stat.h>

namespace {

constexpr int fileHeader = 14;
constexpr int infoHeader = 40;

enum Compression : int { Plain, Rle8, Rle4, BitFields };

template <typename Number>
QByteArray bytes(Number number) {
    QByteArray result(sizeof number, '\0');
    qToLittleEndian(number, result.data());
    return result;
}

/// A bitmap with a grey palette, or masks, where its form has one.
struct Bitmap {
    int width = 2;
    int height = 2;
    int depth = 24;
    Compression compression = Plain;
    QByteArray data{};
    int sizeField = 0;
    std::optional<int> offset{};

    QByteArray colors() const {
        if (compression == BitFields)
            return bytes(0xFF0000) + bytes(0xFF00) + bytes(0xFF);
        QByteArray palette;
        for (int i = 0; depth <= 8 && i < 1 << depth; ++i)
            palette += bytes(0x010101 * (i * 255 / ((1 << depth) - 1)));
        return palette;
    }

    QByteArray file() const {
        const QByteArray table = colors();
        const int start = fileHeader + infoHeader + static_cast<int>(table.size());
        return "BM" + bytes(sizeField) + bytes(0) + bytes(offset.value_or(start)) +
               bytes(infoHeader) + bytes(width) + bytes(height) + bytes<short>(1) +
               bytes(static_cast<short>(depth)) + bytes<int>(compression) + bytes(0) + bytes(0) +
               bytes(0) + bytes(0) + bytes(0) + table + data;
    }
};

/// Two by two pixels, the lower row black and the upper one white.
Bitmap twoRows(int depth, Compression compression, QByteArrayView black, QByteArrayView white) {
    return {.depth = depth,
            .compression = compression,
            .data = black.toByteArray() + white.toByteArray()};
}

class MoonFile : public WidgetTest {
protected:
    QImage load(const QByteArray& file) const {
        const QString path = programPath(QStringLiteral("Moon.bmp"));
        writeFile(path, file);
        return LoadMoonPicture(path).picture;
    }

    QImage load(const Bitmap& bitmap) const { return load(bitmap.file()); }
};

const QByteArray zeros4(4, '\0');
const QByteArray zeros8(8, '\0');
const QByteArray ones8(8, '\xFF');

TEST_F(MoonFile, EveryFormIsReadAndIsRefusedWithItsLastPixelsMissing) {
    const QByteArray end("\0\1", 2);
    const Bitmap forms[] = {
        twoRows(1, Plain, zeros4, QByteArray("\xC0\0\0\0", 4)),
        twoRows(4, Plain, zeros4, QByteArray("\xFF\0\0\0", 4)),
        twoRows(8, Plain, zeros4, QByteArray("\xFF\xFF\0\0", 4)),
        twoRows(16, Plain, zeros4, QByteArray("\xFF\x7F\xFF\x7F", 4)),
        twoRows(24, Plain, zeros8, ones8),
        twoRows(32, Plain, zeros8, ones8),
        twoRows(32, BitFields, zeros8, ones8),
        twoRows(8, Rle8, QByteArray("\2\0\0\0", 4), QByteArray("\2\xFF\0\0", 4) + end),
        twoRows(4, Rle4, QByteArray("\2\0\0\0", 4), QByteArray("\2\xFF\0\0", 4) + end)};
    for (const Bitmap& form : forms) {
        const QImage picture = load(form);
        ASSERT_EQ(picture.size(), QSize(2, 2)) << form.depth << " " << form.compression;
        EXPECT_GT(qGray(picture.pixel(1, 0)), 240) << form.depth;
        EXPECT_EQ(picture.pixelColor(1, 1), QColor(Qt::black)) << form.depth;
        const bool runs = form.compression == Rle8 || form.compression == Rle4;
        const int lastPixels = runs ? 5 : 1; // bytes from the last run's colour on
        EXPECT_TRUE(load(form.file().chopped(lastPixels)).isNull())
            << form.depth << " " << form.compression;
    }
}

TEST_F(MoonFile, WhatIsNoFileIsNotOpened) {
    const QString path = programPath(QStringLiteral("Moon.bmp"));
    ASSERT_EQ(mkfifo(QFile::encodeName(path), 0600), 0); // opening it would wait for a writer
    EXPECT_TRUE(LoadMoonPicture(path).picture.isNull());
}

TEST_F(MoonFile, WhatMayNotBeReadIsMissingHoweverLargeItIs) {
    const QString path = programPath(QStringLiteral("Moon.bmp"));
    writeFile(path, {});
    ASSERT_TRUE(QFile::resize(path, 300'000'000));
    for (const QString& folder : {m_folder.path(), QFileInfo(path).path()})
        ASSERT_TRUE(QFile::setPermissions(folder, QFile::Permissions(0x7777)));
    ASSERT_TRUE(QFile::setPermissions(path, {}));
    const UsualRights usual;
    EXPECT_TRUE(LoadMoonPicture(path).picture.isNull());
    EXPECT_FALSE(LoadMoonPicture(path).isTooLarge);
}

TEST_F(MoonFile, MayHaveAQuarterOfAGigabyteAndNoMore) {
    constexpr qint64 most = 268435456;
    const Bitmap small{.width = 2, .height = 2, .data = QByteArray(16, '\xFF')};
    EXPECT_FALSE(load(small).isNull());
    const QString path = programPath(QStringLiteral("Moon.bmp"));
    ASSERT_TRUE(QFile::resize(path, most)); // with nothing behind the pixels
    EXPECT_FALSE(LoadMoonPicture(path).picture.isNull());
    EXPECT_FALSE(LoadMoonPicture(path).isTooLarge);
    ASSERT_TRUE(QFile::resize(path, most + 1));
    EXPECT_TRUE(LoadMoonPicture(path).picture.isNull());
    EXPECT_TRUE(LoadMoonPicture(path).isTooLarge);
}

// Runs of one colour, so that a small file has many pixels.
TEST_F(MoonFile, MayHaveTheSquareOf8192PixelsAndNoMore) {
    const QByteArray end("\0\1", 2);
    for (const int height : {8192, 8193}) {
        const QByteArray row =
            QByteArray("\xFF\xFF", 2).repeated(32) + QByteArray("\x20\xFF\0\0", 4);
        const Bitmap runs{.width = 8192,
                          .height = height,
                          .depth = 8,
                          .compression = Rle8,
                          .data = row.repeated(height) + end};
        EXPECT_EQ(load(runs).isNull(), height > 8192) << height;
        EXPECT_EQ(LoadMoonPicture(programPath(QStringLiteral("Moon.bmp"))).isTooLarge,
                  height > 8192);
    }
}

TEST_F(MoonFile, ASizeFieldHidesNoDamage) {
    const Bitmap whole{
        .width = 64, .height = 64, .data = QByteArray(qsizetype{64} * 64 * 3, '\xFF')};
    EXPECT_FALSE(load(whole).isNull());
    const QByteArray file = whole.file();
    EXPECT_TRUE(load(file.left(file.size() / 2)).isNull());
    EXPECT_TRUE(load(file.left(100)).isNull());
    EXPECT_TRUE(load(file.left(20)).isNull());
}

TEST_F(MoonFile, AWrongSizeFieldDoesNotMatterWhereAllPixelsAreThere) {
    Bitmap whole = twoRows(24, Plain, zeros8, ones8);
    whole.sizeField = 1 << 30;
    EXPECT_FALSE(load(whole).isNull());
}

TEST_F(MoonFile, PixelsThatAreNotInTheFileAreNoPicture) {
    EXPECT_TRUE(load({.width = 4000, .height = 4000, .data = QByteArray(945, '\xFF')}).isNull());
    for (const int offset : {100'000'000, 62, 0x7FFFFFFF}) {
        Bitmap bitmap = twoRows(24, Plain, zeros8, ones8);
        bitmap.offset = offset;
        EXPECT_TRUE(load(bitmap).isNull()) << offset;
    }
}

TEST_F(MoonFile, PixelsMayStandBehindAGap) {
    Bitmap bitmap = twoRows(24, Plain, zeros8, ones8);
    bitmap.offset = fileHeader + infoHeader + 8;
    bitmap.data.prepend(ones8);
    const QImage picture = load(bitmap);
    ASSERT_EQ(picture.size(), QSize(2, 2));
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(Qt::white));
    EXPECT_EQ(picture.pixelColor(0, 1), QColor(Qt::black));
}

// The length tells where the head ends.
TEST_F(MoonFile, AHeadOfNegativeLengthIsNoPicture) {
    for (const int length : {-15, -100}) {
        const QByteArray head = "BM" + bytes(0) + bytes(0) + bytes(26) + bytes(length) +
                                bytes<short>(2) + bytes<short>(2) + bytes<short>(1) +
                                bytes<short>(24);
        EXPECT_TRUE(load(head + zeros8 + ones8).isNull()) << length;
    }
}

TEST_F(MoonFile, ImpossibleSizesAreNoPicture) {
    for (const int side : {0, -1, 0x7FFFFFFF, -0x7FFFFFFF - 1}) {
        EXPECT_TRUE(load({.width = side, .height = 2, .data = ones8}).isNull()) << side;
        EXPECT_TRUE(load({.width = 0x7FFF, .height = side, .data = ones8}).isNull()) << side;
    }
}

TEST_F(MoonFile, ATopDownBitmapIsAPicture) {
    Bitmap bitmap = twoRows(24, Plain, zeros8, ones8);
    bitmap.height = -2;
    const QImage picture = load(bitmap);
    ASSERT_EQ(picture.size(), QSize(2, 2));
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(Qt::black));
    EXPECT_EQ(picture.pixelColor(0, 1), QColor(Qt::white));
}

// Its lower half is black.
TEST_F(MoonFile, ALargeBitmapIsAPicture) {
    constexpr int side = 5000;
    constexpr int half = side * side * 3 / 2;
    const QImage picture = load(
        {.width = side, .height = side, .data = QByteArray(half, '\0') + QByteArray(half, '\xFF')});
    ASSERT_FALSE(picture.isNull());
    EXPECT_EQ(picture.size(), QSize(side, side));
    EXPECT_EQ(picture.pixelColor(side / 2, side / 4), QColor(Qt::white));
    EXPECT_EQ(picture.pixelColor(side / 2, side * 3 / 4), QColor(Qt::black));
}

TEST_F(MoonFile, ANarrowLargeBitmapKeepsAColumn) {
    const QImage picture =
        load({.width = 1, .height = 5'000'000, .depth = 8, .data = QByteArray(20'000'000, '\xFF')});
    ASSERT_FALSE(picture.isNull());
    EXPECT_EQ(picture.width(), 1);
}

TEST_F(MoonFile, WhatIsNoBitmapIsNoPicture) {
    for (const QByteArray& file : {QByteArray(), QByteArray("BM"), QByteArray("not a bitmap"),
                                   QByteArray(100, '\0'), QByteArray(100, '\xFF')})
        EXPECT_TRUE(load(file).isNull());
    EXPECT_FALSE(LoadMoonPicture(programPath(QStringLiteral("Moon.bmp"))).isTooLarge);
    EXPECT_TRUE(LoadMoonPicture(programPath(QStringLiteral("missing"))).picture.isNull());
    EXPECT_TRUE(LoadMoonPicture(m_folder.path()).picture.isNull());
}

// With nothing but blanks behind its head; a pixel needs four bytes once it is read.
TEST_F(MoonFile, ABitmapMayNeedMoreRoomThanTheToolkitsOwnLimit) {
    const Bitmap wide{.width = 6000, .height = 6000, .depth = 16};
    EXPECT_TRUE(load(wide).isNull());
    const QString path = programPath(QStringLiteral("Moon.bmp"));
    ASSERT_TRUE(QFile::resize(path, 54 + qint64{6000} * 6000 * 2));
    EXPECT_EQ(LoadMoonPicture(path).picture.size(), QSize(6000, 6000));
}

} // namespace

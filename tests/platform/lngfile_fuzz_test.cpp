// SPDX-License-Identifier: MIT
// Initialisation files of random bytes, of the kind that upsets a reader.
#include "platform/lngfile.h"
#include "support/judgement.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace {

constexpr int inputs = 5000;
constexpr int largestInput = 2048;
constexpr int usualInput = 300;
constexpr int manyInputs = 1000000;
constexpr int smallInput = 200;
constexpr int bytesAsked = 255;

constexpr int keys = 20;

const std::vector<QByteArray> sections{"CALENDARS", "JGMONTHS",     "JMONTHS", "MMONTHS",
                                       "WEEKDAYS",  "WEEKDAYSABBR", "LABELS",  "STRINGS"};

const std::vector<QByteArray> pieces{"[",
                                     "]",
                                     "=",
                                     ";",
                                     "\"",
                                     "'",
                                     " ",
                                     "\t",
                                     "\r",
                                     "\n",
                                     "\n",
                                     "\r\n",
                                     "\n1=",
                                     "\n 2 = ",
                                     "\xEF\xBB\xBF",
                                     "\xD0\xAF",
                                     "\xE2\x80\x94",
                                     "\xF0\x9F\x8C\x99",
                                     "\xD0",
                                     "\x80",
                                     "\xFF",
                                     "\xED\xA0\x80",
                                     "abc",
                                     "\n[STRINGS]\n",
                                     QByteArray(1, '\0'),
                                     QByteArray(260, 'x')};

/// Makes files of pieces that mean something to the reader, and of any bytes.
class Generator {
public:
    explicit Generator(unsigned seed) : m_random(seed) {}

    QByteArray make(int largest) {
        // Most of them short, where the pieces meet more often.
        const int size = below((below(4) == 0 ? largest : std::min(largest, usualInput)) + 1);
        const bool bytesToo = below(2) == 0;
        QByteArray bytes;
        while (bytes.size() < size)
            bytes += next(bytesToo);
        return bytes.left(size);
    }

private:
    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }

    QByteArray next(bool bytesToo) {
        const int kind = below(10);
        if (kind < 2)
            return '[' +
                   sections[static_cast<std::size_t>(below(static_cast<int>(sections.size())))] +
                   "]\n";
        if (kind < 4)
            return QByteArray::number(below(keys + 1)) + '=';
        if (kind < 5 && bytesToo)
            return QByteArray(1, static_cast<char>(below(256)));
        return pieces[static_cast<std::size_t>(below(static_cast<int>(pieces.size())))];
    }

    std::mt19937 m_random;
};

// Independent of the reader's own judgement.
bool isValidUtf8(const QByteArray& bytes) {
    const QByteArray marked = 'x' + bytes; // a mark at the start would be dropped
    return QString::fromUtf8(marked).toUtf8() == marked;
}

// What is wrong with an answer, nullptr when nothing is.
const char* faultOf(const LngFile& file, bool utf8, const QByteArray& value) {
    if (value.size() >= bytesAsked)
        return "too long";
    if (value.contains('\0') || value.contains('\n'))
        return "goes on behind its end";
    if (utf8 && !isValidUtf8(value))
        return "a character is cut";
    return file.Decode(value).size() <= value.size() ? nullptr : "more characters than bytes";
}

void readEntry(const LngFile& file, const QByteArray& bytes, const QByteArray& section, int key) {
    const QByteArray value =
        file.GetPrivateProfileString(section, ' ' + QByteArray::number(key), bytesAsked);
    const char* fault = value.isEmpty() ? nullptr : faultOf(file, isValidUtf8(bytes), value);
    ASSERT_EQ(fault, nullptr) << fault << ": [" << section.data() << "] " << key << " of "
                              << bytes.toHex().data();
}

TEST(LngFileFuzz, NoFileUpsetsTheReader) {
    Generator generator(20261120);
    for (int i = 0; i < inputs && !HasFatalFailure(); ++i) {
        const QByteArray bytes = generator.make(largestInput);
        const LngFile file(bytes);
        for (const QByteArray& section : sections) {
            for (int key = 1; key <= keys; ++key)
                readEntry(file, bytes, section, key);
        }
    }
    recordWithstood("initialisation files of random pieces and bytes, every entry read", inputs);
}

// One entry of each section an input, another with each input.
TEST(LngFileFuzz, DISABLED_AMillionInputs) {
    Generator generator(19980101);
    for (int i = 0; i < manyInputs && !HasFatalFailure(); ++i) {
        const QByteArray bytes = generator.make(smallInput);
        const LngFile file(bytes);
        for (const QByteArray& section : sections)
            readEntry(file, bytes, section, i % keys + 1);
    }
    recordWithstood("short initialisation files of random pieces and bytes", manyInputs);
}

} // namespace

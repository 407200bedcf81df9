// SPDX-License-Identifier: MIT
#include "support/widget_test.h"

#include "changecals/changecals.h"
#include "changecals/closing.h"
#include "changecals/windows.h"
#include "platform/beep.h"
#include "platform/program.h"
#include "platform/settingsstore.h"
#include "start/english.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMessageBox>

bool waitUntil(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, 10000);
}

void processEvents() {
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

MessageWatch::MessageWatch() {
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { answer(); });
    m_timer.start(1);
}

QStringList MessageWatch::take() {
    return std::exchange(m_texts, {});
}

void MessageWatch::answer() {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr)
        return;
    auto* box = qobject_cast<QMessageBox*>(modal);
    if (box == nullptr) {
        ADD_FAILURE() << "an unexpected modal window";
        modal->close();
        return;
    }
    EXPECT_EQ(box->icon(), QMessageBox::Warning);
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    m_texts.append(box->text());
    QTest::keyClick(box, Qt::Key_Return);
}

WidgetTest::WidgetTest() {
    EXPECT_TRUE(m_folder.isValid());
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder.filePath(QStringLiteral("config"))));
    const QString program = m_folder.filePath(QStringLiteral("program"));
    EXPECT_TRUE(QDir().mkpath(program));
    SetProgramFolder(program);
    SetEndProgram([this](int status) { m_exitStatus = status; });
    SetBeep([this] { ++m_beeps; });
    ChangeCals::BeginRun();
}

WidgetTest::~WidgetTest() {
    ChangeCals::DestroyAllWindows();
    EXPECT_EQ(m_messages.take(), QStringList()) << "messages that nobody asked about";
    EXPECT_FALSE(Updating);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    SetBeep({});
    SetClock({});
    SetEndProgram({});
    SetProgramFolder({});
    ChangeCals::SetFactories({});
    ChangeCals::BeginRun();
}

QString WidgetTest::settingsPath() const {
    return m_folder.filePath(QStringLiteral("config/Orvalen Years Calendar/settings.ini"));
}

QString WidgetTest::programPath(const QString& name) const {
    return m_folder.filePath(QStringLiteral("program/") + name);
}

void WidgetTest::writeFile(const QString& path, const QByteArray& bytes) const {
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
}

QByteArray WidgetTest::readFile(const QString& path) const {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void WidgetTest::startToday(SystemDate today) {
    SetClock([today] { return today; });
    SetEnglishTexts();
    MonthNames(Jewish, 13).clear();
    setDate(Gregorian, today.day, today.month, today.year);
    ChangeCals::ChangeCal(Gregorian);
}

void click(QWidget* widget, Qt::MouseButton button) {
    QTest::mouseClick(widget, button);
}

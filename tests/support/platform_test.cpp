// SPDX-License-Identifier: MIT
#include "support/platform_test.h"

#include "platform/settingsfile.h"

#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QWheelEvent>
#include <utility>

bool waitUntil(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, 10000);
}

void showWithFocus(QWidget& window, QWidget& control) {
    window.show();
    window.activateWindow();
    control.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    ASSERT_TRUE(waitUntil([&control] { return control.hasFocus(); }));
}

void processEvents() {
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

MessageWatch::MessageWatch() {
    answerOther([](QWidget& modal) {
        ADD_FAILURE() << "an unexpected modal window";
        modal.close();
    });
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
    if (box == nullptr)
        return m_answerOther(*modal);
    if (!box->isActiveWindow())
        return; // its keys would not reach it yet
    EXPECT_EQ(box->icon(), QMessageBox::Warning);
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    m_texts.append(box->text());
    const QKeyCombination key = std::exchange(m_key, Qt::Key_Return);
    QTest::keyClick(box, key.key(), key.keyboardModifiers());
}

void click(QWidget* widget, Qt::MouseButton button) {
    QTest::mouseClick(widget, button);
}

void turnWheel(QWidget& widget, bool up) {
    const QPointF at = widget.rect().center();
    QWheelEvent event(at, widget.mapToGlobal(at), {}, {0, up ? 120 : -120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
}

Desk::Desk() {
    EXPECT_TRUE(m_folder.isValid());
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder.filePath(QStringLiteral("config"))));
    QString program = m_folder.filePath(QStringLiteral("program"));
    EXPECT_TRUE(QDir().mkpath(program));
    ProgramFolder = [program] { return program; };
    EXPECT_TRUE(LoadSettings()); // as a run begins, not as the test before ended
}

Desk::~Desk() {
    EXPECT_EQ(m_messages.take(), QStringList()) << "messages that nobody asked about";
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

QString Desk::settingsPath() const {
    return m_folder.filePath(QStringLiteral("config/Orvalen Years Calendar/settings.ini"));
}

QString Desk::programPath(const QString& name) const {
    return m_folder.filePath(QStringLiteral("program/") + name);
}

void Desk::writeFile(const QString& path, const QByteArray& bytes) const {
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
}

QByteArray Desk::readFile(const QString& path) const {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

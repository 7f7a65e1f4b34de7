// SPDX-License-Identifier: GPL-3.0-or-later
// Scenes of Keyboarding: a drill on a small screen, a lesson's introduction, a drill under way,
// a speed test and the results of a sitting.
#include "Scene.h"

#include "shell/core/Settings.h"
#include "shell/Services.h"
#include "typing/frmType.h"
#include "typing/TypingLineView.h"

#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

frmType *Open(std::array<qint16, 6> values = {1, 1, 1, 0, 1, 0})
{
    TheSettings().typing.values = values;
    return new frmType;
}

// Types `count` characters of the running exercise, every `wrongEvery`-th key a slip first,
// with the virtual clock moving `gap` milliseconds a key.
void Type(frmType *window, int count, int wrongEvery, int gap)
{
    auto &clock = Services::clock();
    for (int i = 0; i < count && window->mode() != frmType::Mode::Idle; ++i) {
        if (wrongEvery > 0 && i % wrongEvery == wrongEvery - 1)
            window->typeChar(u'#');
        window->typeChar(window->exercise().expected());
        clock.delay(gap / 1000.0);
    }
}

} // namespace

QList<Scene> typingScenes()
{
    return {
        // What a 1366 x 768 screen at 200 % leaves for a window.
        {QStringLiteral("typing-small"),
         [] {
             auto *window = Open();
             QTest::mouseClick(window->cmdStart, Qt::LeftButton);
             return window;
         },
         QSize(683, 384)},
        {QStringLiteral("typing-lesson"),
         [] {
             auto *window = Open();
             window->lstLessons->setCurrentRow(2);
             return window;
         }},
        {QStringLiteral("typing-drill"),
         [] {
             auto *window = Open();
             window->lstLessons->setCurrentRow(4);
             QTest::mouseClick(window->cmdStart, Qt::LeftButton);
             Type(window, 14, 6, 400);
             window->typeChar(u'#');
             return window;
         }},
        {QStringLiteral("typing-test"),
         [] {
             auto *window = Open({1, 1, 1, 0, 1, 1});
             QTest::mouseClick(window->cmdTest, Qt::LeftButton);
             Type(window, 95, 17, 260);
             return window;
         }},
        {QStringLiteral("typing-results"),
         [] {
             auto *window = Open({1, 1, 1, 0, 1, 1});
             const int gaps[] = {420, 330, 300, 260};
             for (int gap : gaps) {
                 QTest::mouseClick(window->cmdTest, Qt::LeftButton);
                 Type(window, 400, 23, gap);
                 Services::clock().delay(70);
                 QMetaObject::invokeMethod(window->Timer1, "timeout");
             }
             QTest::mouseClick(window->cmdResults, Qt::LeftButton);
             return window;
         }},
    };
}

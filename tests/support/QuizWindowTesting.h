// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Steps the tests of the three quiz windows take alike.
#include "quiz/widgets/QuizWindow.h"

#include <QApplication>
#include <QFileInfo>
#include <QLineEdit>
#include <QTest>

namespace QuizWindowTesting {

// The name of the file a picture shows.
template <typename Picture> QString fileName(const Picture *box)
{
    return QFileInfo(box->file()).fileName();
}

// An active window, as on a desktop, so keys and focus behave.
inline void showActive(QuizWindow &window)
{
    window.show();
    QApplication::setActiveWindow(&window);
    if (!QTest::qWaitForWindowActive(&window))
        qWarning("the %s window did not become active", qPrintable(window.objectName()));
}

inline void typeAnswer(QuizWindow &window, const QString &answer)
{
    QTest::keyClicks(window.txtAnswer, answer);
    QTest::keyClick(window.txtAnswer, Qt::Key_Return);
}

} // namespace QuizWindowTesting

// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader finds in every window: each window named by its caption, every control
// that takes the focus named, every label that may show typed or stored text shown as plain
// text. Activity windows come from the one table of activities, so each new one is covered.
#include "Activities.h"
#include "shell/ActivityWindow.h"
#include "shell/frmInput.h"
#include "shell/frmMenu.h"
#include "shell/frmResults.h"
#include "shell/HelpWindow.h"
#include "shell/WindowUtil.h"
#include "shell/widgets/Gauge.h"
#include "support/TestDoubles.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QDialog>
#include <QLabel>
#include <QPointer>
#include <QTest>

namespace {

void walk(QAccessibleInterface *node, const QString &path, QStringList &problems, int depth = 0)
{
    if (!node || depth > 40)
        return;
    const QAccessible::State state = node->state();
    const QString name = node->text(QAccessible::Name).trimmed();
    QObject *object = node->object();
    const QString here =
        path + u'/' + (object && !object->objectName().isEmpty() ? object->objectName()
                                                                  : QString::number(node->role()));
    if (state.focusable && !state.invisible && name.isEmpty())
        problems.append(here + QStringLiteral(" can take the focus but has no name"));
    if (name.contains(u'\t'))
        problems.append(here + QStringLiteral(" has a tab in its name"));
    for (int i = 0; i < node->childCount(); ++i)
        walk(node->child(i), here, problems, depth + 1);
}

// Everything wrong with one window, as readable lines.
QStringList problemsOf(QWidget *window)
{
    QStringList problems;
    QAccessibleInterface *root = QAccessible::queryAccessibleInterface(window);
    if (!root)
        return {window->objectName() + QStringLiteral(" has no accessible interface")};
    if (root->role() != QAccessible::Window && root->role() != QAccessible::Dialog)
        problems.append(window->objectName() + QStringLiteral(" is not exposed as a window"));
    if (root->text(QAccessible::Name) != window->windowTitle() || window->windowTitle().isEmpty())
        problems.append(window->objectName() + QStringLiteral(" is not named by its caption"));
    walk(root, window->objectName(), problems);
    const auto labels = window->findChildren<QLabel *>();
    for (QLabel *label : labels)
        if (label->textFormat() == Qt::AutoText)
            problems.append(QStringLiteral("%1/%2 may show text as markup")
                                .arg(window->objectName(), label->objectName()));
    return problems;
}
} // namespace

class AccessibilityTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase()
    {
        InitTestProgram();
    }

    void everyWindowIsNamedAndNamesItsControls_data()
    {
        QTest::addColumn<int>("activity");
        QTest::newRow("menu") << -1;
        QTest::newRow("results") << -2;
        QTest::newRow("word entry") << -3;
        QTest::newRow("help") << -4;
        for (const ActivityEntry &entry : Activities())
            if (entry.open)
                QTest::newRow(qPrintable(entry.caption.trimmed())) << entry.index;
    }
    // Each activity window is walked as it opens, then after each of its buttons is pressed
    // once (so its other states and every window it opens are walked too).
    void everyWindowIsNamedAndNamesItsControls()
    {
        QFETCH(int, activity);
        TestEnvironment env;
        QStringList problems;
        env.dialogs.onRun = [&problems](QDialog &dialog) {
            dialog.show();
            problems += problemsOf(&dialog);
            dialog.hide();
            return int(QDialog::Rejected);
        };
        std::unique_ptr<QWidget> window;
        auto openActivity = [activity, &window] {
            for (const ActivityEntry &entry : Activities())
                if (entry.index == activity)
                    window.reset(entry.open());
            window->setAttribute(Qt::WA_DeleteOnClose, false);
        };
        switch (activity) {
        case -1:
            window = std::make_unique<frmMenu>(Activities());
            break;
        case -2: {
            auto results = std::make_unique<frmResults>();
            results->setWindowTitle(QStringLiteral("Math Race Results"));
            window = std::move(results);
            break;
        }
        case -3:
            window = std::make_unique<frmInput>();
            break;
        case -4:
            window = std::make_unique<HelpWindow>();
            break;
        default:
            openActivity();
        }
        window->show();
        problems += problemsOf(window.get());
        // Each button of the opening window is pressed in a fresh window of its own.
        const qsizetype buttons =
            activity >= 0 ? window->findChildren<QAbstractButton *>().size() : 0;
        for (qsizetype i = 0; i < buttons; ++i) {
            openActivity();
            window->show();
            QAbstractButton *button = window->findChildren<QAbstractButton *>().value(i);
            if (!button || !button->isVisible() || !button->isEnabled() ||
                button->text() == ActivityWindow::exitCaption(false))
                continue;
            button->click();
            problems += problemsOf(window.get());
        }
        problems.removeDuplicates();
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
    }

    // The alert event itself reaches only a running screen-reader bridge, which the offscreen
    // platform does not have; what it carries is checked here.
    void resultsAndGaugesReachScreenReaders()
    {
        QLabel label;
        Announce(&label, QStringLiteral("Good!"));
        QCOMPARE(QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Description),
                 QStringLiteral("Good!"));

        Gauge gauge;
        gauge.setCaption(QStringLiteral("Gas"));
        gauge.setPercent(40);
        QAccessibleInterface *node = QAccessible::queryAccessibleInterface(&gauge);
        QCOMPARE(node->role(), QAccessible::ProgressBar);
        QCOMPARE(node->text(QAccessible::Name), QStringLiteral("Gas"));
        QCOMPARE(node->valueInterface()->currentValue().toInt(), 40);
        QCOMPARE(node->text(QAccessible::Value), QStringLiteral("40 percent"));
    }
};

QTEST_MAIN(AccessibilityTest)
#include "tst_accessibility.moc"

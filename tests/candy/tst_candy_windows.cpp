// SPDX-License-Identifier: GPL-3.0-or-later
#include "candy/frmCandy.h"
#include "support/TestDoubles.h"

#include <QTest>

class tst_candy_windows : public QObject {
    Q_OBJECT
private slots:
    void opens();
};

void tst_candy_windows::opens()
{
    TestEnvironment env;
    frmCandy w;
    w.show();
}

QTEST_MAIN(tst_candy_windows)
#include "tst_candy_windows.moc"

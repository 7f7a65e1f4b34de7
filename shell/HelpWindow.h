// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QTextBrowser;
class QPushButton;

// The help window: one page of data/help at a time, a way back to the contents, large type.
class HelpWindow : public QWidget {
    Q_OBJECT
public:
    explicit HelpWindow(QWidget *parent = nullptr);
    // An empty topic shows the contents page; an unknown topic falls back to it.
    void showTopic(const QString &topic);
    QString currentTopic() const { return m_topic; }

private:
    QTextBrowser *m_browser;
    QPushButton *m_contents;
    QPushButton *m_back;
    QString m_topic;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QPushButton;

// What every activity window shares: it seeds the random source when it opens, centres itself,
// knows its help topic, switches its end button between "E&xit" and "&Stop", and when it
// closes stops its timers and sounds and tells the menu to come back.
class ActivityWindow : public QWidget {
    Q_OBJECT
public:
    explicit ActivityWindow(const QString &helpTopic, QWidget *parent = nullptr);
    QString helpTopic() const { return m_helpTopic; }

    static QString exitCaption(bool running);

signals:
    void closed();
    // This window has closed and `next` has opened in its place: the menu stays hidden.
    void replaced(ActivityWindow *next);

protected:
    // Sets the end button's caption: "&Stop" while something runs, "E&xit" otherwise.
    static void setRunningCaption(QPushButton *button, bool running);
    void openHelp();
    // Closes this window and opens `next` in its place (the card games switch this way).
    void replaceWith(ActivityWindow *next);
    // The look every activity shares: friendly 14-point lettering on a window of one colour.
    void applyLook(const QColor &background);
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QString m_helpTopic;
    bool m_centred = false;
    ActivityWindow *m_next = nullptr;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#include "HelpWindow.h"

#include "shell/core/DataPath.h"
#include "WindowUtil.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

HelpWindow::HelpWindow(QWidget *parent) : QWidget(parent, Qt::Window)
{
    setObjectName(QStringLiteral("HelpWindow"));
    setWindowTitle(tr("Lumbridle Help"));
    m_browser = new QTextBrowser(this);
    m_browser->setObjectName(QStringLiteral("txtHelp"));
    m_browser->setAccessibleName(tr("Help page"));
    m_browser->setOpenExternalLinks(false);
    m_browser->setSearchPaths({DataPath() + QStringLiteral("help")});
    QFont font = m_browser->font();
    font.setPointSizeF(font.pointSizeF() * 1.3);
    m_browser->setFont(font);

    m_contents = new QPushButton(tr("&Contents"), this);
    m_contents->setObjectName(QStringLiteral("cmdContents"));
    m_back = new QPushButton(tr("&Back"), this);
    m_back->setObjectName(QStringLiteral("cmdBack"));
    auto *close = new QPushButton(tr("Cl&ose"), this);
    close->setObjectName(QStringLiteral("cmdClose"));
    connect(m_contents, &QPushButton::clicked, this, [this] { showTopic(QString()); });
    connect(m_back, &QPushButton::clicked, m_browser, &QTextBrowser::backward);
    connect(m_browser, &QTextBrowser::backwardAvailable, m_back, &QPushButton::setEnabled);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    m_back->setEnabled(false);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_contents);
    buttons->addWidget(m_back);
    buttons->addStretch();
    buttons->addWidget(close);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(buttons);
    layout->addWidget(m_browser, 1);
    resize(720, 620);
}

void HelpWindow::showTopic(const QString &topic)
{
    QString page = topic.isEmpty() ? QStringLiteral("index.html") : topic + QStringLiteral(".html");
    if (!QFileInfo::exists(DataPath() + QStringLiteral("help/") + page))
        page = QStringLiteral("index.html");
    m_topic = page == QLatin1String("index.html") ? QString() : topic;
    m_browser->setSource(QUrl::fromLocalFile(DataPath() + QStringLiteral("help/") + page));
    if (!isVisible()) {
        show();
        CentreOnScreen(this);
    }
    raise();
    activateWindow();
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "RealServices.h"

#include "HelpWindow.h"
#include "Preferences.h"
#include "Printing.h"
#include "SoundBackend.h"
#include "WindowUtil.h"
#include "shell/core/WaveFile.h"

#include <cstdio>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLibrary>
#include <QLoggingCategory>
#include <QPrinter>
#include <QPrintPreviewDialog>
#include <QThread>
#include <QToolBar>
#include <QUrl>

Q_LOGGING_CATEGORY(lcShell, "lumbridle.shell")

QtSound::QtSound() = default;

QtSound::~QtSound() = default;

QString QtSound::modulePath()
{
    // Beside the program in a build tree; in the library folder of an installed program.
    const QDir program(QCoreApplication::applicationDirPath());
    const QString beside = program.filePath(QStringLiteral("liblumbridle_sound.so"));
    if (QFileInfo::exists(beside))
        return beside;
    return QDir::cleanPath(
        program.filePath(QStringLiteral(LUMBRIDLE_MODULE_DIR "/liblumbridle_sound.so")));
}

SoundBackend *QtSound::backend()
{
    if (!m_loaded) {
        m_loaded = true;
        QLibrary module(modulePath());
        const auto create = reinterpret_cast<CreateSoundBackend>(module.resolve(SoundBackendEntry));
        if (create)
            m_backend.reset(create());
        else
            qCInfo(lcShell) << "no audio module, sounds stay silent:" << module.errorString();
        if (m_backend && !m_backend->available()) {
            qCInfo(lcShell) << "no audio device: sounds stay silent";
            m_backend.reset();
        }
    }
    return m_backend.get();
}

void QtSound::stop()
{
    if (m_backend)
        m_backend->stop();
}

void QtSound::play(const QString &file, bool wait)
{
    if (Preferences::get().muted || !QFileInfo::exists(file) || !backend())
        return;
    // The wait itself belongs to PlaySound, which asks length().
    Q_UNUSED(wait);
    m_backend->play(file);
}

double QtSound::length(const QString &file)
{
    if (Preferences::get().muted || !m_backend)
        return 0;
    return waveSeconds(file);
}

void QtSound::beep()
{
    if (!Preferences::get().muted)
        QApplication::beep();
}

double QtSound::waveSeconds(const QString &file)
{
    return WaveFile::seconds(file);
}

void SystemClock::delay(double seconds)
{
    if (!(seconds > 0))
        return;
    // Show what changed before the screen freezes for the pause; no input or timer is handled.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows)
        if (window->isVisible())
            window->repaint();
    const qint64 wait = qint64(seconds * 1000);
    QElapsedTimer elapsed;
    elapsed.start();
    while (elapsed.elapsed() < wait)
        QThread::msleep(ulong(qMin<qint64>(10, wait - elapsed.elapsed())));
}

QMessageBox::StandardButton QtDialogs::message(QWidget *parent, const MessageRequest &request)
{
    if (!CanShowMessages()) {
        // Nobody could close the box: say it where it can be read and go on as if closed.
        std::fprintf(stderr, "lumbridle: %s: %s\n", qPrintable(request.title),
                     qPrintable(request.text));
        if (request.buttons.testFlag(QMessageBox::Cancel))
            return QMessageBox::Cancel;
        return request.defaultButton != QMessageBox::NoButton ? request.defaultButton
                                                              : QMessageBox::Ok;
    }
    QMessageBox box(request.icon, request.title, request.text, request.buttons, parent);
    box.setTextFormat(Qt::PlainText);
    if (!request.details.isEmpty())
        box.setDetailedText(request.details);
    if (request.defaultButton != QMessageBox::NoButton)
        box.setDefaultButton(request.defaultButton);
    return QMessageBox::StandardButton(box.exec());
}

QString QtDialogs::openFileName(QWidget *parent, const QString &caption, const QString &folder,
                                const QString &filter)
{
    return QFileDialog::getOpenFileName(parent, caption, folder, filter);
}

QString QtDialogs::saveFileName(QWidget *parent, const QString &caption, const QString &folder,
                                const QString &filter)
{
    return QFileDialog::getSaveFileName(parent, caption, folder, filter);
}

bool QtDialogs::print(QWidget *parent, const PrintDocument &document)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::Letter));
    printer.setPageOrientation(document.landscape() ? QPageLayout::Landscape
                                                    : QPageLayout::Portrait);
    printer.setFullPage(true);
    printer.setDocName(document.title());
    QPrintPreviewDialog preview(&printer, parent);
    preview.setWindowTitle(document.title());
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview,
                     [&document](QPrinter *target) { RenderDocument(document, *target); });
    // A teacher without a printer still gets the pages, as a PDF file.
    if (auto *toolBar = preview.findChild<QToolBar *>()) {
        toolBar->addSeparator();
        QAction *pdf = toolBar->addAction(QObject::tr("Save as &PDF..."));
        QObject::connect(pdf, &QAction::triggered, &preview, [&preview, &document, this] {
            QString path = saveFileName(&preview, QObject::tr("Save as PDF"), QString(),
                                        QObject::tr("PDF files (*.pdf)"));
            if (path.isEmpty())
                return;
            if (!path.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive))
                path += QLatin1String(".pdf");
            if (!WritePdf(document, path))
                message(&preview, MessageRequest{QObject::tr("Save as PDF"),
                                                 QObject::tr("The PDF file could not be written."),
                                                 QMessageBox::Critical});
        });
    }
    return preview.exec() == QDialog::Accepted;
}

int QtDialogs::run(QDialog &dialog)
{
    return dialog.exec();
}

HelpWindow *HelpBrowserService::window()
{
    if (!m_window) {
        m_window = new HelpWindow;
        m_window->setAttribute(Qt::WA_DeleteOnClose);
    }
    return m_window;
}

void HelpBrowserService::showTopic(QWidget *, const QString &topic)
{
    window()->showTopic(topic);
}

void HelpBrowserService::showContents(QWidget *)
{
    window()->showTopic(QString());
}

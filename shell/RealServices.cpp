// SPDX-License-Identifier: GPL-3.0-or-later
#include "RealServices.h"

#include "HelpWindow.h"
#include "Preferences.h"
#include "Printing.h"

#include <QApplication>
#include <QAudioDevice>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QMediaDevices>
#include <QPrinter>
#include <QPrintPreviewDialog>
#include <QSoundEffect>
#include <QtEndian>
#include <QThread>
#include <QToolBar>
#include <QUrl>

Q_LOGGING_CATEGORY(lcShell, "lumbridle.shell")

// Owns the sound effects; lives on the sound thread.
class SoundWorker : public QObject {
    Q_OBJECT
public slots:
    void play(const QString &file)
    {
        QSoundEffect *&effect = m_effects[file];
        if (!effect) {
            effect = new QSoundEffect(this);
            effect->setSource(QUrl::fromLocalFile(file));
        }
        effect->play();
    }
    void stop()
    {
        for (QSoundEffect *effect : std::as_const(m_effects))
            effect->stop();
    }

private:
    QHash<QString, QSoundEffect *> m_effects;
};

QtSound::QtSound() = default;

QtSound::~QtSound()
{
    if (m_thread) {
        m_thread->quit();
        m_thread->wait();
        delete m_thread;
    }
}

bool QtSound::ready()
{
    if (!m_checked) {
        m_checked = true;
        m_hasDevice = !QMediaDevices::audioOutputs().isEmpty();
        if (!m_hasDevice)
            qCInfo(lcShell) << "no audio device: sounds stay silent";
    }
    if (!m_hasDevice)
        return false;
    if (!m_thread) {
        m_thread = new QThread;
        m_thread->setObjectName(QStringLiteral("sound"));
        m_worker = new SoundWorker;
        m_worker->moveToThread(m_thread);
        QObject::connect(m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
        m_thread->start();
    }
    return true;
}

void QtSound::stop()
{
    if (m_worker)
        QMetaObject::invokeMethod(m_worker, "stop", Qt::QueuedConnection);
}

void QtSound::play(const QString &file, bool wait)
{
    if (Preferences::get().muted || !QFileInfo::exists(file) || !ready())
        return;
    QMetaObject::invokeMethod(m_worker, "play", Qt::QueuedConnection, Q_ARG(QString, file));
    if (wait)
        Services::clock().delay(waveSeconds(file));
}

void QtSound::beep()
{
    if (!Preferences::get().muted)
        QApplication::beep();
}

double QtSound::waveSeconds(const QString &file)
{
    QFile in(file);
    if (!in.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray head = in.read(4096);
    if (head.size() < 12 || !head.startsWith("RIFF") || head.mid(8, 4) != "WAVE")
        return 0;
    quint32 byteRate = 0;
    qsizetype pos = 12;
    while (pos + 8 <= head.size()) {
        const QByteArray id = head.mid(pos, 4);
        const quint32 size = qFromLittleEndian<quint32>(head.constData() + pos + 4);
        if (id == "fmt " && pos + 16 <= head.size())
            byteRate = qFromLittleEndian<quint32>(head.constData() + pos + 16);
        if (id == "data")
            return byteRate ? double(size) / byteRate : 0;
        pos += 8 + size + (size & 1);
    }
    return 0;
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

QMessageBox::StandardButton QtDialogs::message(QWidget *parent, const MessageSpec &spec)
{
    QMessageBox box(spec.icon, spec.title, spec.text, spec.buttons, parent);
    if (spec.defaultButton != QMessageBox::NoButton)
        box.setDefaultButton(spec.defaultButton);
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
                message(&preview, MessageSpec{QObject::tr("Save as PDF"),
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

#include "RealServices.moc"

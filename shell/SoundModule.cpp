// SPDX-License-Identifier: GPL-3.0-or-later
// The audio module: Qt Multimedia on a thread of its own, so a pause on the window's thread
// never holds a sound back.
#include "SoundBackend.h"

#include <QAudioDevice>
#include <QHash>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QThread>
#include <QUrl>

namespace {

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

// Plays through the first audio output, or stays silent when there is none.
class QtMultimediaBackend final : public SoundBackend {
public:
    ~QtMultimediaBackend() override
    {
        if (m_thread) {
            m_thread->quit();
            m_thread->wait();
            delete m_thread;
        }
    }

    bool available() override
    {
        if (!m_checked) {
            m_checked = true;
            m_available = !QMediaDevices::audioOutputs().isEmpty();
        }
        return m_available;
    }

    void play(const QString &file) override
    {
        if (!available())
            return;
        if (!m_thread) {
            m_thread = new QThread;
            m_thread->setObjectName(QStringLiteral("sound"));
            m_worker = new SoundWorker;
            m_worker->moveToThread(m_thread);
            QObject::connect(m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
            m_thread->start();
        }
        QMetaObject::invokeMethod(m_worker, "play", Qt::QueuedConnection, Q_ARG(QString, file));
    }

    void stop() override
    {
        if (m_worker)
            QMetaObject::invokeMethod(m_worker, "stop", Qt::QueuedConnection);
    }

private:
    QThread *m_thread = nullptr;
    SoundWorker *m_worker = nullptr;
    bool m_checked = false;
    bool m_available = false;
};

} // namespace

extern "C" Q_DECL_EXPORT SoundBackend *lumbridleCreateSoundBackend()
{
    return new QtMultimediaBackend;
}

#include "SoundModule.moc"

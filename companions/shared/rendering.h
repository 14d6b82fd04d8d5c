// The renderer as a child process: a job and settings in, a command stream out.
#pragma once

#include <QObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <optional>

namespace korvel::shared {

/// What came of a run of the renderer.
struct Rendered
{
    enum class End {
        Complete,   // it ran to its end; a job that is not well-formed ends early, without a word
        Refused,    // the same, but it said what is not printed, or why: see said
        NoRoom,     // the temporary folder cannot be written; it did not run
        NotStarted, // it is not there, or there is no memory or no process for it: see said
        Failed,     // it ended with a status other than 0, which it never does by itself
        Killed,     // a signal ended it: the system, which was out of memory, or somebody
        TooSlow,    // it was stopped, as it took longer than patience
        NoStream,   // it ran to its end, and there is no stream
    };

    End end = End::NoStream;
    QByteArray stream = {}; // Complete, Refused
    QString said = {};    // Refused: by the renderer; NotStarted: by the system; NoRoom: the folder
    QString program = {}; // path of the renderer
    int number = 0;       // Failed: the status; Killed: the signal

    /// Whether there is a stream.
    [[nodiscard]] bool isThere() const { return end == End::Complete || end == End::Refused; }

    /// Why there is no stream, or what the renderer said of it, in one line for people; empty when
    /// all went well.
    [[nodiscard]] QString reason() const;
};

/**
 * Runs korvel-print on a job without waiting for it. A newer request replaces the one that runs.
 *
 * Each has a home folder of its own, which is gone with the object, so that the user's settings are
 * neither read nor touched. It works in this process's folder: a catalogue that the settings name
 * by a relative path is the one that it names to this process.
 */
class Rendering : public QObject
{
    Q_OBJECT

public:
    /// @param program path of the renderer
    explicit Rendering(QString program, QObject *parent = nullptr);
    ~Rendering() override;

    /// The renderer beside this program, in its build folder, or in the search path; its bare name
    /// when there is none.
    static QString findRenderer();

    /// Renders a job with the bytes of a settings file; ended() follows, unless the next request
    /// comes first.
    void render(const QByteArray &job, const QByteArray &settings);

signals:
    void ended(const korvel::shared::Rendered &rendered);

private:
    struct Request
    {
        QByteArray job;
        QByteArray settings;
    };

    void start(const Request &request);
    void finish(int status, QProcess::ExitStatus exit);
    void end(Rendered rendered);
    [[nodiscard]] QString inHome(const QString &name) const;
    [[nodiscard]] bool write(const QString &name, const QByteArray &bytes) const;

    QString renderer;
    QTemporaryDir home;
    QProcess process;
    QTimer patience;   // a renderer that hangs is stopped
    bool runs = false; // from start() to end(): the process is gone sooner
    std::optional<Request> next;
};

/**
 * Renders a job with the bytes of a settings file, and waits for it. Needs an application object.
 *
 * A signal that asks this process to end (SIGHUP, SIGINT, SIGQUIT, SIGTERM) ends the renderer and
 * removes its home folder first. What is ignored stays ignored.
 */
Rendered rendered(const QByteArray &job, const QByteArray &settings,
                  const QString &program = Rendering::findRenderer());

} // namespace korvel::shared

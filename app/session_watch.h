#pragma once

#include <QObject>

class QSessionManager;

namespace quillfern::app {

/// Tells when the session ends (the user logs out, the computer shuts down, the program is asked to stop by a signal)
/// or the computer goes to sleep, so that nothing unsaved depends on coming back.
class SessionWatch : public QObject {
    Q_OBJECT
public:
    /// Takes over SIGTERM, SIGINT and SIGHUP for the rest of the process. There is one a program.
    explicit SessionWatch(QObject* parent = nullptr);
    ~SessionWatch() override;

    /// Listens for the computer's sleep, where the system has a login manager. Costs a round trip: not before the
    /// first window stands.
    void listen_for_sleep();

Q_SIGNALS:
    void stop_asked(); ///< by a signal: the program ends without a question
    void session_ending(); ///< the program is ended by the session soon
    void going_to_sleep();

private:
    void read_signal();

private Q_SLOTS:
    void take_sleep(bool begins);

private:
    int signals_[2] = {-1, -1}; ///< what the handler writes to, and what the event loop reads
};

} // namespace quillfern::app

// What the start of the program is measured against: the same toolkit, an empty main window, and the end after the
// first paint.
#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QTimer>
#include <QWindow>

#include <cstdlib>

namespace {

class EndAfterPaint : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Expose && static_cast<QWindow*>(watched)->isExposed())
            QTimer::singleShot(0, [] { std::_Exit(0); });
        return false;
    }
};

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QMainWindow window;
    window.resize(1280, 800);
    window.show();
    EndAfterPaint end;
    window.windowHandle()->installEventFilter(&end);
    return QApplication::exec();
}

#include <QCoreApplication>
#include <QEvent>
#include <QGenericPlugin>
#include <QTimer>
#include <QWindow>

#include <cstdlib>

namespace {

/// Ends the program as soon as its first window has been painted.
class FirstFrame : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject *object, QEvent *event) override
    {
        const auto *window = qobject_cast<QWindow *>(object);
        // The window paints in its own handling of the event, which comes after this.
        if (event->type() == QEvent::Expose && window && window->isExposed())
            QTimer::singleShot(0, this, [] { std::_Exit(EXIT_SUCCESS); });
        return false;
    }
};

} // namespace

/// Lets any program be measured from its start to its first frame without a change to it; see bench_start.
class FirstFramePlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "firstframe.json")

public:
    QObject *create(const QString &, const QString &) override
    {
        auto *filter = new FirstFrame(this);
        QCoreApplication::instance()->installEventFilter(filter);
        return filter;
    }
};

#include "firstframe.moc"

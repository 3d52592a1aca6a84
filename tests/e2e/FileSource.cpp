#include <QDrag>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QRasterWindow>
#include <QUrl>

#include <cstdio>

namespace {

void print(const char *line)
{
    std::printf("%s\n", line);
    std::fflush(stdout);
}

}

/// A small window in the corner of the screen from which a file can be dragged, as from a file manager. It prints that
/// the drag begins, whether the place under the pointer takes the file, and how the drag ends.
class FileSource : public QRasterWindow {
public:
    explicit FileSource(const QString &path) : m_path(path) { setGeometry(10, 10, 60, 60); }

protected:
    void mouseMoveEvent(QMouseEvent *event) override
    {
        if (!(event->buttons() & Qt::LeftButton) || m_isDragging)
            return;
        m_isDragging = true;
        auto *data = new QMimeData;
        data->setUrls({QUrl::fromLocalFile(m_path)});
        auto *drag = new QDrag(this);
        drag->setMimeData(data);
        QObject::connect(drag, &QDrag::actionChanged, this,
                         [](Qt::DropAction action) { print(action == Qt::IgnoreAction ? "refused" : "taken"); });
        print("dragging");
        print(drag->exec(Qt::CopyAction) == Qt::CopyAction ? "dropped" : "returned");
    }

private:
    const QString m_path;
    bool m_isDragging = false;
};

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    FileSource source(QCoreApplication::arguments().value(1));
    source.show();
    return QGuiApplication::exec();
}

#include "ImportDrop.h"

#include "ImportOffer.h"
#include "ViewEngine.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QQmlProperty>

namespace {

const QString sheetView = QStringLiteral("qrc:/Corvane/Settings/Import/ImportSheet.qml");
const QString announcementView = QStringLiteral("qrc:/Embera/Controls/Announcement.qml");

}

ImportDrop::ImportDrop(QQmlEngine &engine, EBWindow &window)
    : m_engine(engine), m_window(window), m_view(window.contentItem()->childItems().constFirst())
{
    QQuickItem *content = window.contentItem();
    setParent(content);
    // The window's own buttons stay in front.
    QQuickItem *chrome = content->childItems().constLast();
    setParentItem(content);
    stackBefore(chrome);
    setFlag(ItemAcceptsDrops);
    const auto fill = [this] { setSize(m_window.size()); };
    connect(&window, &QWindow::widthChanged, this, fill);
    connect(&window, &QWindow::heightChanged, this, fill);
    fill();
}

ImportDrop::~ImportDrop() = default;

std::unique_ptr<ImportOffer> ImportDrop::offerIn(const QMimeData *dragged) const
{
    const QList<QUrl> urls = dragged->urls();
    if (urls.size() != 1 || !urls.constFirst().isLocalFile())
        return nullptr;
    const QString path = urls.constFirst().toLocalFile();
    const QFileInfo info(path);
    QFile file(path);
    // Whoever opens a pipe waits for its writer.
    if (!info.isFile() || info.size() > ExportFile::largest || !file.open(QFile::ReadOnly))
        return nullptr;
    const ExportFile::Reading reading = ExportFile::read(file.read(ExportFile::largest), Contract::storeKeys());
    return reading.faults.isEmpty() ? std::make_unique<ImportOffer>(info.fileName(), reading.settings) : nullptr;
}

void ImportDrop::dragEnterEvent(QDragEnterEvent *event)
{
    const bool canBeDropped =
        !asks() && event->possibleActions().testFlag(Qt::CopyAction) && offerIn(event->mimeData()) != nullptr;
    event->setAccepted(canBeDropped);
    if (!canBeDropped)
        return;
    event->setDropAction(Qt::CopyAction);
    showSheet();
}

void ImportDrop::dragMoveEvent(QDragMoveEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void ImportDrop::dragLeaveEvent(QDragLeaveEvent * /*event*/)
{
    if (!asks())
        m_sheet.reset();
}

void ImportDrop::dropEvent(QDropEvent *event)
{
    std::unique_ptr<ImportOffer> offer = asks() ? nullptr : offerIn(event->mimeData());
    event->setAccepted(offer != nullptr);
    if (offer) {
        event->setDropAction(Qt::CopyAction);
        ask(std::move(offer));
    } else if (!asks()) {
        m_sheet.reset();
    }
}

void ImportDrop::showSheet()
{
    if (m_sheet)
        return;
    m_sheet.reset(ViewEngine::make(m_engine, sheetView));
    m_sheet->setParentItem(this);
    if (QGuiApplication::isRightToLeft())
        QQmlProperty::write(m_sheet.get(), QStringLiteral("LayoutMirroring.enabled"), true, qmlContext(m_sheet.get()));
    connect(m_sheet.get(), SIGNAL(accepted()), this, SLOT(accept()));
    connect(m_sheet.get(), SIGNAL(cancelled()), this, SLOT(close()));
}

void ImportDrop::ask(std::unique_ptr<ImportOffer> offer)
{
    showSheet();
    m_offer = std::move(offer);
    m_focus = m_window.activeFocusItem();
    m_view->setEnabled(false);
    m_sheet->setProperty("offer", QVariant::fromValue(m_offer.get()));
    QMetaObject::invokeMethod(m_sheet.get(), "begin");
    m_window.requestActivate();
}

void ImportDrop::accept()
{
    if (!m_offer->accept())
        return;
    close();
    announce(tr("The settings were imported."));
}

void ImportDrop::announce(const QString &text)
{
    if (!m_announcement) {
        m_announcement.reset(ViewEngine::make(m_engine, announcementView));
        m_announcement->setParentItem(this);
    }
    QMetaObject::invokeMethod(m_announcement.get(), "say", Q_ARG(QString, text));
}

void ImportDrop::close()
{
    m_view->setEnabled(true);
    if (m_focus)
        m_focus->forceActiveFocus(Qt::OtherFocusReason);
    // It is in the middle of a signal of its own.
    m_sheet.release()->deleteLater();
    m_offer.release()->deleteLater();
}

#pragma once

#include "EBWindow.h"

#include <QPointer>
#include <QQuickItem>

#include <memory>

class ImportOffer;
class QQmlEngine;

/// Takes export files that are dropped onto a window, and asks the person there. It lies over the window's view, which
/// it disables while it asks, and takes no clicks before.
class ImportDrop : public QQuickItem {
    Q_OBJECT
public:
    /// The window, which hosts its view already, owns this. The engine must outlive both.
    ImportDrop(QQmlEngine &engine, EBWindow &window);
    ~ImportDrop() override;

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private slots:
    void accept();
    void close();

private:
    /// The settings of the only thing that is dragged; none when it is no export file.
    std::unique_ptr<ImportOffer> offerIn(const QMimeData *dragged) const;
    bool asks() const { return m_offer != nullptr; }
    void showSheet();
    void ask(std::unique_ptr<ImportOffer> offer);
    /// Has assistive technologies read that out.
    void announce(const QString &text);

    QQmlEngine &m_engine;
    EBWindow &m_window;
    QQuickItem *m_view;
    QPointer<QQuickItem> m_focus;
    std::unique_ptr<ImportOffer> m_offer;
    /// Exists while something is dragged over the window that can be dropped, and while the person is asked.
    std::unique_ptr<QQuickItem> m_sheet;
    /// Exists once something was announced.
    std::unique_ptr<QQuickItem> m_announcement;
};

#pragma once

#include <QAbstractButton>
#include <QMimeData>
#include <QPainter>
#include <QPixmap>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QFileDialog;
QT_END_NAMESPACE

namespace dravolin {

// Receives what was dropped.
class QVDragDropViewDelegate
{
public:
    virtual ~QVDragDropViewDelegate() = default;
    virtual void handleDroppedPaths(const QStringList &paths) = 0;
};

// The picture on which folders and files are dropped. It tells what a drop will do and highlights itself
// while an acceptable drag is over it. A click, Space or Enter asks for a folder instead, its context menu
// for a folder or files; what is chosen is taken as if it had been dropped. Main thread only.
class QVDragDropView : public QAbstractButton
{
    Q_OBJECT

public:
    explicit QVDragDropView(QWidget *parent = nullptr);

    // The delegate is not owned; null takes it away.
    void setDelegate(QVDragDropViewDelegate *delegate) { m_delegate = delegate; }
    // The folder of "DragImage.png" and "LutImage.png".
    void setImageFolder(const QString &folder);
    // "LutImage.png" when `state` is exactly 1, else "DragImage.png".
    void setImageForLUTcheckboxState(int state);
    [[nodiscard]] QString imageName() const;
    [[nodiscard]] QPixmap image() const { return m_image; }
    // What the view says a drop will do, in the hint under the picture and to a screen reader.
    void setConstructing(bool constructing);
    // While runs are under way the picture is dimmed and the view says what another drop would do.
    void setRunning(bool running);

    // Sets the highlight and answers copy, or clears it and refuses when a dragged address is no local file.
    Qt::DropAction draggingEntered(const QMimeData &drag);
    void draggingExited() { setHighlighted(false); }
    // False for a picture as the first path, so that the drag's source keeps it; more paths behind it are
    // handed on all the same. The delegate is called later, so that the source is free while it asks.
    bool performDragOperation(const QMimeData &drag);

    // Opens the platform's chooser and returns; what is chosen later goes the way of a drop.
    void chooseFolder();
    void chooseFiles();
    // Asks which of the two.
    void showMenu(const QPoint &globalPosition);

    // The part that is painted: it ends above the screen's lower edge, where the window may reach below it.
    [[nodiscard]] QRect shownArea() const;

    [[nodiscard]] bool isHighlighted() const { return m_isHighlighted; }
    void setHighlighted(bool highlighted);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void choose(QFileDialog &dialog);
    void describe();
    void paintFrame(QPainter &painter) const;
    [[nodiscard]] QString hint() const;
    [[nodiscard]] QRectF paintHint(QPainter &painter) const; // gives the place that it takes
    void handOn(const QStringList &paths);

    QVDragDropViewDelegate *m_delegate = nullptr;
    bool m_isHighlighted = false;
    QString m_imageFolder;
    bool m_showsLutImage = false;
    bool m_constructing = false;
    bool m_running = false;
    QPixmap m_image;
};

} // namespace dravolin

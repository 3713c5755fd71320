#include "app/QVDragDropView.h"

#include "app/Accessibility.h"
#include "app/Contrast.h"
#include "app/DroppedPaths.h"
#include "app/ScreenEdge.h"
#include "base/PathText.h"
#include "base/Texts.h"

#include <QDragEnterEvent>
#include <QFileDialog>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QUrl>

#include <algorithm>

namespace dravolin {

namespace {

const QString dragImage = QStringLiteral("DragImage.png");
const QString lutImage = QStringLiteral("LutImage.png");
constexpr qreal highlightWidth = 6.0;
constexpr qreal margin = 12;

} // namespace

QVDragDropView::QVDragDropView(QWidget *parent) : QAbstractButton(parent)
{
    connect(this, &QAbstractButton::clicked, this, &QVDragDropView::chooseFolder);
    setAcceptDrops(true);
    setImageForLUTcheckboxState(0);
    setConstructing(false);
}

void QVDragDropView::setImageFolder(const QString &folder)
{
    m_imageFolder = folder;
    m_image.load(joinPath(m_imageFolder, imageName()));
    update();
}

QString QVDragDropView::imageName() const
{
    return m_showsLutImage ? lutImage : dragImage;
}

void QVDragDropView::setImageForLUTcheckboxState(int state)
{
    m_showsLutImage = state == 1;
    m_image.load(joinPath(m_imageFolder, imageName()));
    update();
}

void QVDragDropView::setConstructing(bool constructing)
{
    m_constructing = constructing;
    describe();
}

void QVDragDropView::setRunning(bool running)
{
    m_running = running;
    setBusy(*this, running);
    describe();
}

void QVDragDropView::describe()
{
    const QString purpose = m_constructing ? Texts::tr("construct look-up table") : Texts::tr("anonymize");
    setAccessibleDescription(m_running ? purpose + QStringLiteral(". ") + hint() : purpose);
    update();
}

Qt::DropAction QVDragDropView::draggingEntered(const QMimeData &drag)
{
    const QList<QUrl> urls = drag.urls();
    const bool acceptable = std::all_of(urls.cbegin(), urls.cend(), isLocalFile);
    setHighlighted(acceptable);
    return acceptable ? Qt::CopyAction : Qt::IgnoreAction;
}

bool QVDragDropView::performDragOperation(const QMimeData &drag)
{
    setHighlighted(false);
    if (!drag.hasUrls())
        return true;
    const QStringList paths = droppedPaths(drag);
    const bool pictureFirst = !paths.isEmpty() && isPicture(paths.first());
    // intended: a single picture does nothing at all
    if (!pictureFirst || paths.size() >= 2)
        handOn(paths);
    return !pictureFirst;
}

void QVDragDropView::handOn(const QStringList &paths)
{
    QMetaObject::invokeMethod(
        this,
        [this, paths] {
            if (m_delegate)
                m_delegate->handleDroppedPaths(paths);
        },
        Qt::QueuedConnection);
}

void QVDragDropView::setHighlighted(bool highlighted)
{
    m_isHighlighted = highlighted;
    update();
}

QSize QVDragDropView::sizeHint() const
{
    return {480, 190};
}

QSize QVDragDropView::minimumSizeHint() const
{
    return {240, 120};
}

void QVDragDropView::dragEnterEvent(QDragEnterEvent *event)
{
    // only file-name lists are of interest here
    if (!event->mimeData()->hasUrls() || draggingEntered(*event->mimeData()) != Qt::CopyAction) {
        event->ignore();
        return;
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void QVDragDropView::dragLeaveEvent(QDragLeaveEvent *)
{
    draggingExited();
}

void QVDragDropView::dropEvent(QDropEvent *event)
{
    if (!performDragOperation(*event->mimeData())) {
        event->ignore();
        return;
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

QString QVDragDropView::hint() const
{
    if (m_running)
        return Texts::tr("Working. Another drop would run beside this one.");
    return m_constructing ? Texts::tr("Drop folders or DICOM files here to construct a look-up table")
                          : Texts::tr("Drop folders or DICOM files here to anonymize them");
}

QRect QVDragDropView::shownArea() const
{
    const int below = heightBelowScreen(*this);
    const int shown = below > 0 ? height() - below - int(margin) : height();
    return {0, 0, width(), std::min(std::max(shown, minimumSizeHint().height()), height())};
}

QRectF QVDragDropView::paintHint(QPainter &painter) const
{
    constexpr int flags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    const QRectF inside = QRectF(shownArea()).adjusted(margin, margin, -margin, -margin);
    painter.setPen(palette().color(QPalette::Text));
    QRectF place;
    painter.drawText(inside, flags, hint(), &place);
    return place;
}

void QVDragDropView::paintFrame(QPainter &painter) const
{
    constexpr int line = 2;
    constexpr int corner = 10;
    const QRect area = shownArea();
    painter.setPen(QPen(hasFocus() ? focusColour(palette()) : borderColour(palette()), line));
    painter.setBrush(palette().base());
    painter.drawRoundedRect(QRectF(area).adjusted(1, 1, -1, -1), corner, corner);
    if (hasFocus())
        return;
    // a pen with dashes takes longer than all else in the window, and each run's begin waits for it
    constexpr int gap = 4;
    constexpr int step = 12;
    for (int x = corner; x < area.width() - corner; x += step) {
        painter.fillRect(x, area.top(), gap, line, palette().base());
        painter.fillRect(x, area.bottom() + 1 - line, gap, line, palette().base());
    }
    for (int y = corner; y < area.height() - corner; y += step) {
        painter.fillRect(area.left(), y, line, gap, palette().base());
        painter.fillRect(area.right() + 1 - line, y, line, gap, palette().base());
    }
}

void QVDragDropView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void QVDragDropView::contextMenuEvent(QContextMenuEvent *event)
{
    showMenu(event->globalPos());
}

void QVDragDropView::showMenu(const QPoint &globalPosition)
{
    auto *const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(Texts::tr("Choose a folder..."), this, &QVDragDropView::chooseFolder);
    menu->addAction(Texts::tr("Choose files..."), this, &QVDragDropView::chooseFiles);
    menu->popup(globalPosition);
}

void QVDragDropView::chooseFolder()
{
    auto *const dialog = new QFileDialog(window(), Texts::tr("Choose a folder"));
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    choose(*dialog);
}

void QVDragDropView::chooseFiles()
{
    auto *const dialog = new QFileDialog(window(), Texts::tr("Choose files"));
    dialog->setFileMode(QFileDialog::ExistingFiles);
    choose(*dialog);
}

void QVDragDropView::choose(QFileDialog &dialog)
{
    dialog.setAttribute(Qt::WA_DeleteOnClose);
    connect(&dialog, &QFileDialog::filesSelected, this, [this](const QStringList &paths) {
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls.append(QUrl::fromLocalFile(path));
        QMimeData chosen;
        chosen.setUrls(urls);
        (void)performDragOperation(chosen);
    });
    dialog.open();
}

void QVDragDropView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    paintFrame(painter);
    const QRectF textArea = paintHint(painter);
    const qreal top = textArea.bottom() + margin;
    const QRectF imageArea(margin, top, width() - 2 * margin, shownArea().height() - top - margin);
    if (!m_image.isNull() && imageArea.height() > 0) {
        const QSizeF size = QSizeF(m_image.size()).scaled(imageArea.size(), Qt::KeepAspectRatio);
        const QPointF corner = imageArea.center() - QPointF(size.width(), size.height()) / 2;
        painter.setOpacity(m_running ? 0.3 : 1.0);
        painter.drawPixmap(QRectF(corner, size), m_image, QRectF(m_image.rect()));
        painter.setOpacity(1.0);
    }
    if (!m_isHighlighted)
        return;
    painter.setPen(QPen(focusColour(palette()), highlightWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(shownArea()).adjusted(3, 3, -3, -3), 8, 8);
}

} // namespace dravolin

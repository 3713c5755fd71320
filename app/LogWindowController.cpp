#include "app/LogWindowController.h"

#include "app/AlertSheetRunner.h"
#include "app/LogView.h"
#include "app/ScreenEdge.h"
#include "base/Files.h"
#include "base/Texts.h"
#include "ui_LogWindow.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QGuiApplication>
#include <QScreen>
#include <QShortcut>
#include <QTextCursor>

#include <algorithm>

namespace dravolin {

namespace {

constexpr qint64 turn = 10;               // milliseconds for which the event loop is held up
constexpr qsizetype sliceLength = 16384;  // so many characters cost far less than a turn
constexpr qsizetype giantLine = 16384;    // characters
constexpr qsizetype longestBlock = 40960; // characters

bool hasGiantLine(QStringView text)
{
    for (qsizetype start = 0; text.size() - start > giantLine;) {
        const qsizetype lineEnd = text.lastIndexOf(u'\n', start + giantLine);
        if (lineEnd < start)
            return true;
        start = lineEnd + 1;
    }
    return false;
}

} // namespace

LogWindowController::LogWindowController() : m_window(std::make_unique<QWidget>())
{
    Ui::LogWindow layout;
    layout.setupUi(m_window.get());
    m_logTextView = layout.logTextView;
    connectTools(layout);
    m_nextTurn.setInterval(0);
    QObject::connect(&m_nextTurn, &QTimer::timeout, m_window.get(), [this] { appendForOneTurn(); });
}

LogWindowController::~LogWindowController() = default;

void LogWindowController::connectTools(const Ui::LogWindow &layout)
{
    QWidget *const window = m_window.get();
    for (const QKeySequence &keys : {QKeySequence(Qt::Key_Escape), QKeySequence(Qt::CTRL | Qt::Key_W)})
        QObject::connect(new QShortcut(keys, window), &QShortcut::activated, window, &QWidget::close);
    QLineEdit *const field = layout.findField;
    QObject::connect(new QShortcut(QKeySequence::Find, window), &QShortcut::activated, field,
                     [field] { field->setFocus(); });
    QObject::connect(field, &QLineEdit::returnPressed, window, [this, field, result = layout.findResult] {
        result->setText(findNext(field->text()) ? QString() : Texts::tr("Not found"));
    });
    QObject::connect(layout.copyButton, &QPushButton::clicked, window,
                     [this] { QGuiApplication::clipboard()->setText(m_text); });
    QObject::connect(layout.saveButton, &QPushButton::clicked, window, [this] { save(); });
}

bool LogWindowController::findNext(const QString &text)
{
    if (m_logTextView->find(text))
        return true;
    const QTextCursor first = m_logTextView->document()->find(text);
    if (first.isNull())
        return false;
    m_logTextView->setTextCursor(first);
    return true;
}

void LogWindowController::save()
{
    auto *const dialog = new QFileDialog(m_window.get(), Texts::tr("Save the log"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("txt"));
    QObject::connect(dialog, &QFileDialog::fileSelected, m_window.get(), [this](const QString &path) {
        if (writeText(path, m_text))
            return;
        auto *const alert =
            createAlert(Texts::tr("The log could not be saved."), path, {Texts::tr("OK")}, 0, m_window.get());
        alert->setAttribute(Qt::WA_DeleteOnClose);
        alert->open();
    });
    dialog->open();
}

void LogWindowController::showWithText(const QString &text)
{
    centerOnScreen(*m_window);
    m_window->show();
    m_logTextView->clear();
    // looking for words in a line without blanks takes the view more than ten times as long
    m_logTextView->setWordWrapMode(hasGiantLine(text) ? QTextOption::WrapAnywhere
                                                      : QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_text = text;
    m_shown = 0;
    appendForOneTurn();
    m_logTextView->moveCursor(QTextCursor::Start); // the first insertion has taken the caret along
}

void LogWindowController::bringToFront()
{
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

void LogWindowController::appendForOneTurn()
{
    QElapsedTimer timer;
    timer.start();
    QTextCursor end(m_logTextView->document());
    end.movePosition(QTextCursor::End);
    while (m_shown < m_text.size() && timer.elapsed() < turn) {
        const QString slice = nextSlice();
        end.insertText(slice);
        m_shown += slice.size();
        if (m_shown < m_text.size() && !slice.endsWith(u'\n'))
            goOnInNewBlock(end);
    }
    if (m_shown < m_text.size())
        m_nextTurn.start();
    else
        m_nextTurn.stop();
}

QString LogWindowController::nextSlice() const
{
    const QStringView rest = QStringView(m_text).sliced(m_shown);
    if (rest.size() <= sliceLength)
        return rest.toString();
    qsizetype lineEnd = rest.lastIndexOf(u'\n', sliceLength - 1);
    if (lineEnd < 0) // one long line: it costs more in pieces
        lineEnd = rest.first(std::min(rest.size(), longestBlock)).indexOf(u'\n', sliceLength);
    if (lineEnd >= 0)
        return rest.first(lineEnd + 1).toString();
    if (rest.size() <= longestBlock)
        return rest.toString();
    return rest.first(rest.at(longestBlock - 1).isHighSurrogate() ? longestBlock - 1 : longestBlock)
        .toString();
}

void centerOnScreen(QWidget &window)
{
    const QRect available = window.screen()->availableGeometry();
    const QSize room = roomOnScreen(window);
    window.resize(window.size().boundedTo(room));
    const QPoint place = available.center() - window.rect().center();
    const int lowest = available.top() + room.height() - 1 - window.height();
    window.move(place.x(), std::max(available.top(), std::min(place.y(), lowest)));
}

} // namespace dravolin

#include "app/LogWindowController.h"

#include "app/AlertSheetRunner.h"
#include "app/LogSearch.h"
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
#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>

namespace dravolin {

namespace {

constexpr qint64 turn = 5;                // milliseconds for which the event loop is held up
constexpr qsizetype sliceLength = 16384;  // so many characters cost far less than a turn
constexpr qsizetype giantLine = 16384;    // characters
constexpr qsizetype longestBlock = 40960; // characters

// With so many characters or lines each block counts, and none may take long to lay out.
constexpr qsizetype longText = 1'000'000;
constexpr qsizetype manyLines = 30'000;
constexpr qsizetype lengthOfLong = 4096;
constexpr qsizetype longestOfLong = 16384;

bool isLong(QStringView text)
{
    return text.size() > longText || text.count(u'\n') > manyLines;
}

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
    connectSearch(*field, *layout.findResult);
    QObject::connect(layout.copyButton, &QPushButton::clicked, window,
                     [this] { QGuiApplication::clipboard()->setText(m_text); });
    QObject::connect(layout.saveButton, &QPushButton::clicked, window, [this] { save(); });
}

void LogWindowController::connectSearch(QLineEdit &field, QLabel &result)
{
    m_search = std::make_unique<LogSearch>(*m_logTextView, [this] { return m_shown == m_text.size(); });
    QObject::connect(&field, &QLineEdit::textChanged, m_window.get(), [this] { m_search->stop(); });
    QObject::connect(&field, &QLineEdit::returnPressed, m_window.get(), [this, &field, &result] {
        result.clear();
        m_search->start(field.text(), [&result](bool found) {
            result.setText(found ? QString() : Texts::tr("Not found"));
        });
    });
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
    m_search->stop();
    m_logTextView->clear();
    // looking for words in a line without blanks takes the view more than ten times as long
    m_logTextView->setWordWrapMode(hasGiantLine(text) ? QTextOption::WrapAnywhere
                                                      : QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_text = text;
    m_isLong = isLong(text);
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
    const QTextBlock first = end.block();
    end.beginEditBlock(); // the view looks at what is new once a turn
    while (m_shown < m_text.size() && timer.elapsed() < turn) {
        const QString slice = nextSlice();
        if (m_isLong)
            insertAsOneBlock(end, slice);
        else
            end.insertText(slice);
        m_shown += slice.size();
        if (m_shown < m_text.size() && !slice.endsWith(u'\n'))
            goOnInNewBlock(end);
    }
    end.endEditBlock();
    countLines(first);
    if (m_shown < m_text.size())
        m_nextTurn.start();
    else
        m_nextTurn.stop();
}

QString LogWindowController::nextSlice() const
{
    const QStringView rest = QStringView(m_text).sliced(m_shown);
    const qsizetype length = m_isLong ? lengthOfLong : sliceLength;
    const qsizetype longest = m_isLong ? longestOfLong : longestBlock;
    if (rest.size() <= length)
        return rest.toString();
    qsizetype lineEnd = rest.lastIndexOf(u'\n', length - 1);
    if (lineEnd < 0) // one long line: it costs more in pieces
        lineEnd = rest.first(std::min(rest.size(), longest)).indexOf(u'\n', length);
    if (lineEnd >= 0)
        return rest.first(lineEnd + 1).toString();
    if (rest.size() <= longest)
        return rest.toString();
    return rest.first(rest.at(longest - 1).isHighSurrogate() ? longest - 1 : longest).toString();
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

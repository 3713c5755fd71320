#pragma once

#include <QLabel>
#include <QPointer>
#include <QWidget>

namespace dravolin {

// A sign that says by its shape and by its colour how something stands, and gives a label the same colour. It
// is drawn beside the label's first line that is not empty. Without a kind it is blank and keeps its place.
// Main thread only.
class StatusIcon : public QWidget
{
    Q_OBJECT

public:
    enum class Kind {
        None,
        Done,      // a tick in a circle
        Attention, // an exclamation mark in a triangle
        Errors,    // an exclamation mark in a square on its corner
        Refused    // a cross in a circle
    };

    explicit StatusIcon(QWidget *parent = nullptr);

    void setKind(Kind kind);
    [[nodiscard]] Kind kind() const { return m_kind; }
    // The label is not owned.
    void setLabel(QLabel *label);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void follow();
    [[nodiscard]] QColor colour() const;
    [[nodiscard]] QRectF place() const;

    Kind m_kind = Kind::None;
    QPointer<QLabel> m_label;
};

} // namespace dravolin

// The paper as a widget.
#pragma once

#include "companions/preview/picture.h"
#include "companions/shared/rendering.h"

#include <QWidget>

#include <optional>

namespace korvel::settings {

/// Shows the paper, or a message in its place.
class PaperView : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    void showPaper(const preview::Picture &paper);
    void showMessage(const QString &text);

    /// Says why there is no paper.
    void showFailure(const shared::Rendered &rendered);

    /// The message that is shown; empty while the paper is.
    [[nodiscard]] QString message() const { return note; }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::optional<preview::Picture> picture;
    QString note;
};

} // namespace korvel::settings

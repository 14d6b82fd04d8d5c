// The fields of the form: a number and a switch that may be not set, and a list of catalogues.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>
#include <QStringList>

#include <optional>

namespace korvel::settings {

/// A whole number. One step below its least is "not set"; a text that is no such number is shown as
/// it is.
class NumberBox : public QSpinBox
{
    Q_OBJECT

public:
    /// @param least    the least number that can be chosen
    /// @param standard the number that the first step up from "not set" gives
    NumberBox(int least, int standard, QWidget *parent = nullptr);

    void show(const std::optional<QString> &text);

    /// Whether something is typed that is not chosen yet.
    [[nodiscard]] bool isBeingTyped() const;

    void stepBy(int steps) override;

signals:
    /// The user chose a number, or that there be none.
    void chosen(const std::optional<QString> &text);

protected:
    void wheelEvent(QWheelEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    [[nodiscard]] int none() const { return minimum(); }

    const int standardNumber;
};

/// On, off, or not set. A text that is none of these counts as off and is shown beside it.
class SwitchBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit SwitchBox(QWidget *parent = nullptr);

    void show(const std::optional<QString> &text);

signals:
    /// The user switched it on or off.
    void chosen(const std::optional<QString> &text);

protected:
    void nextCheckState() override;
};

/// Which of the catalogues found the labels are taken from.
class CatalogueBox : public QComboBox
{
    Q_OBJECT

public:
    explicit CatalogueBox(QWidget *parent = nullptr);

    /// @param folders where catalogues are looked for
    void show(const std::optional<QString> &folder, const std::optional<QString> &file,
              const QStringList &folders);

signals:
    /// The user chose a catalogue, or that there be none.
    void chosen(const std::optional<QString> &folder, const std::optional<QString> &file);

protected:
    void wheelEvent(QWheelEvent *event) override;
};

} // namespace korvel::settings

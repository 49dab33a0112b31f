#pragma once

#include "hyperboloid/HyperboloidParameters.h"

#include <QDialog>
#include <array>
#include <functional>
#include <optional>

class HyperboloidFrame;
class QAbstractSpinBox;
class QLayout;

/** The modal dialog that asks for the fifteen parameters of the hyperboloid. */
class HyperboloidParameterDialog : public QDialog {
    Q_OBJECT

public:
    HyperboloidParameterDialog(const HyperboloidParameters& initial, QWidget* parent);

    /** Told of values that break a condition, and of those that stay in force. */
    using Refusal = std::function<void(const HyperboloidParameters& refused,
                                       const HyperboloidParameters& kept)>;

    /**
     * Lets the user edit a frame's parameters until all conditions hold; a broken one is shown and
     * a new dialog opened with the frame's own values. The frame itself is not changed.
     *
     * @param frame  null, with which nothing is asked, or the frame
     * @param parent the window that the dialogs belong to, on the screen
     * @param refuse called, if given, before a broken condition is shown
     * @return the accepted values; none when the user gave up, or when the frame or the parent was
     *         closed meanwhile
     */
    static std::optional<HyperboloidParameters> ask(const HyperboloidFrame* frame, QWidget* parent,
                                                    const Refusal& refuse = {});

    /** The name of a value as the user sees it, for example "Û1". */
    static QString nameOf(HyperboloidParameter::Member member);

    /** The values that the fields show now. */
    HyperboloidParameters parameters() const;

public slots:
    /** Refuses as long as a text is no number of its field: the user goes on in that field. */
    void accept() override;

private:
    QAbstractSpinBox*& fieldOf(HyperboloidParameter::Member member);
    QAbstractSpinBox* fieldOf(HyperboloidParameter::Member member) const;
    QLayout* createColumns();
    QLayout* createButtons();

    /** In the order of HyperboloidParameters::all(). */
    std::array<QAbstractSpinBox*, HyperboloidParameters::count> fields{};
};

#pragma once

#include <QLabel>

namespace ovra {
namespace GlobalElements {
class FurnaceState;
}

namespace Process {

// The job code of the firing on the process page, for the title bar: read from across the
// lab beside the program's name. Empty and hidden on every other page, and for a firing
// started without a code.
class JobCodeBadge : public QLabel
{
    Q_OBJECT

public:
    static constexpr int maxWidth = 380;

    // The furnace must outlive the badge.
    explicit JobCodeBadge(const GlobalElements::FurnaceState &furnace, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void Draw();

    const GlobalElements::FurnaceState &m_furnace;
};

} // namespace Process
} // namespace ovra

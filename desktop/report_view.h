#pragma once

#include <QPlainTextEdit>

#include "desktop/control_view.h"

namespace vantore {

/// The report box on the screen: read, marked, copied, scrolled both ways, never wrapped. Only the lines in
/// view are laid out.
class ReportBox : public QPlainTextEdit {
  public:
    ReportBox(QWidget* parent, ViewContext& context, ReportScreen& report);

    /// Takes over the report's lines; where only lines have been added, only those.
    void refresh(double zoom);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    void append(QTextCursor& cursor, const ReportLine& line, bool first);

    ViewContext& context_;
    ReportScreen& report_;
    std::size_t shown_ = 0; ///< lines
    int writing_ = -1;      ///< of the report, as shown
    double zoom_ = 0;
    Font bodyFont_;
};

} // namespace vantore

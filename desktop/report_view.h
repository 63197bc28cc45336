#pragma once

#include <QTextEdit>

#include "desktop/control_view.h"

namespace vantore {

/// The report box on the screen: read, marked, copied, scrolled both ways, never wrapped.
class ReportBox : public QTextEdit {
  public:
    ReportBox(QWidget* parent, ViewContext& context, ReportScreen& report);

    /// Takes over the report's lines; where only lines have been added, only those.
    void refresh(double zoom);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    void append(QTextCursor& cursor, const ReportLine& line);

    ViewContext& context_;
    ReportScreen& report_;
    std::vector<ReportLine> shown_;
    double zoom_ = 0;
};

class ReportView : public ControlView {
  public:
    ReportView(ViewContext& context, ReportScreen& report, QWidget* parent);

  protected:
    void syncContent(const Layout& layout) override;
};

} // namespace vantore

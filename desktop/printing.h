#pragma once

#include <QPageLayout>
#include <QPagedPaintDevice>
#include <vector>

#include "shell/platform.h"

namespace vantore {

/// Printing of documents: lines that flow down the pages, pictures at a page's origin.

/// The paper of the user's country, A4 or Letter, with the suite's margins.
QPageLayout pageLayout(Orientation orientation);

/// The room between the margins, in hundredths of a millimetre.
Printer::Area printableArea(const QPageLayout& layout);

/// One line of a page: its top in points from the page's upper margin.
struct PageLine {
    const PrintedLine* line;
    double top;
};

/// What stands on one page.
struct Page {
    std::vector<PageLine> lines;
    std::vector<const PrintedPicture*> pictures;
};

/// A document on its pages. Where its widest line would be cut, all fonts are smaller by `fontShare`, so
/// that columns stay under each other.
struct PagedDocument {
    std::vector<Page> pages;
    double fontShare = 1;
};

/// Lays a document out for pages of that room, in points. It points into the job.
PagedDocument layOutPages(const PrintJob& job, QSizeF room);

/// Paints the document on a printer or a PDF file whose page layout is set. DeviceUnavailable when the device
/// refuses.
void printOn(QPagedPaintDevice& device, const PrintJob& job);

/// The document as a PDF file's bytes.
QByteArray pdfOf(const PrintJob& job);

} // namespace vantore

#pragma once

#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QString>
#include <vector>

#include "shell/platform.h"

namespace vantore {

/// Printing of documents: lines that flow down the pages, pictures at a page's origin, a number under each
/// page.

/// The paper of the user's country, A4 or Letter, with the suite's margins.
QPageLayout pageLayout(Orientation orientation);

/// The room between the margins, in hundredths of a millimetre.
Printer::Area printableArea(const QPageLayout& layout);

/// The orientation that a document asks for; one whose lines are too wide for upright paper lies across.
Orientation orientationOf(const PrintJob& job);

/// One line of a page: its top in points from the page's upper margin.
struct PageLine {
    QString text;
    Font font; ///< as it is painted
    int colour;
    double top;
};

/// What stands on one page.
struct Page {
    std::vector<PageLine> lines;
    std::vector<const PrintedPicture*> pictures;
};

/// Lays a document out on pages of that room, in points. Where its widest line would be cut, all fonts are
/// smaller by as much as that needs, so that columns stay under each other, but by no more than a fifth;
/// what is still too long goes on in a further line. The pages point to the job's pictures.
std::vector<Page> layOutPages(const PrintJob& job, QSizeF room);

/// Paints the document on a printer or a PDF file whose page layout is set, or those of its pages that the
/// device is asked for. DeviceUnavailable when the device refuses.
void printOn(QPagedPaintDevice& device, const PrintJob& job);

/// The document as a PDF file's bytes.
QByteArray pdfOf(const PrintJob& job);

} // namespace vantore

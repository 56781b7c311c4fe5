#pragma once

#include <utils/result.h>

#include <QByteArray>

namespace Workbench
{

class SoftwareDocument;

// The document on pages of A4 as a PDF file, with its title and the page's number on each, and
// pictures as lines. It holds neither the time nor versions of this machine, so that equal
// documents give equal bytes where the fonts are the same. A failure is a sentence.
Utils::Result<QByteArray> pdfOf(SoftwareDocument *document);

} // namespace Workbench

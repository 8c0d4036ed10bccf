#pragma once

#include "pages/page.h"

class QPrinter;

namespace ferna::renderer {

/// Prints on the system's default printer. Error 57 where there is none, where it accepts no jobs
/// or where the job cannot be handed over; the detail names the printer.
void printOnDefault(const pages::Report& report);

/// Asks for the printer, copies and pages in the system's dialog, then prints. Error 32755 where
/// the dialog is cancelled, else as above.
void printOnChosen(const pages::Report& report);

/// The pages to print, as indices from 0 in printing order, by the printer's page range and order.
std::vector<std::size_t> pagesToPrint(const QPrinter& printer, std::size_t pages);

/// Prints on a printer that is set up.
void printOn(QPrinter& printer, const pages::Report& report);

} // namespace ferna::renderer

#pragma once

#include "app/pages/figure.h"
#include "grants/grant_file.h"

#include <string>

/// Amounts in the organization's currency, in English as the whole interface.
namespace quillfern::app {

std::string amount_text(grants::Money amount, const grants::GrantFile& file);

Figure amount_figure(grants::Money amount, const grants::GrantFile& file);

/// An ask that is not set counts as nothing in totals; in its own row it is left open.
Figure ask_figure(const grants::Grant& grant, const grants::GrantFile& file);

/// The award's value; a dash for a grant that is not awarded.
Figure award_figure(const grants::Grant& grant, const grants::GrantFile& file);

} // namespace quillfern::app

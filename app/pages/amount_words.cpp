#include "app/pages/amount_words.h"

#include "grants/summaries.h"

namespace quillfern::app {

std::string amount_text(grants::Money amount, const grants::GrantFile& file)
{
    return display_text(amount, file.org.currencyCode, grants::Lang::en);
}

Figure amount_figure(grants::Money amount, const grants::GrantFile& file)
{
    return {amount_text(amount, file), amount.cents};
}

Figure ask_figure(const grants::Grant& grant, const grants::GrantFile& file)
{
    return grant.ask ? amount_figure(*grant.ask, file) : Figure{no_figure, {}};
}

Figure award_figure(const grants::Grant& grant, const grants::GrantFile& file)
{
    return grant.stage == grants::Stage::awarded ? amount_figure(award_value(grant), file) : Figure{no_figure, {}};
}

} // namespace quillfern::app

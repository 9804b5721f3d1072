#include "app/help/help_texts.h"

namespace quillfern::app::help_texts {

HelpArticle pipeline()
{
    return {
        {
            HelpParagraph{"Every grant stands in one of seven stages. Four are open requests: Prospect, Letter of "
                          "Inquiry, Drafting and Submitted. Three are decided: Awarded, Declined and Withdrawn."},
            HelpHeading{"The odds"},
            HelpParagraph{
                "What an open request is likely to bring is the amount asked for times its chance of success, to the "
                "cent. You can give a grant a chance of its own; without one the chance of its stage counts."},
            HelpTable{{"Stage", "Chance"},
                {
                    {"Prospect", "10%, unless the grant has its own."},
                    {"Letter of Inquiry", "20%, unless the grant has its own."},
                    {"Drafting", "35%, unless the grant has its own."},
                    {"Submitted", "50%, unless the grant has its own."},
                    {"Awarded", "Always 100%."},
                    {"Declined, Withdrawn", "Always 0%."},
                }},
            HelpParagraph{"An award counts with the amount awarded; as long as that is not filled in, with the amount "
                          "asked for."},
            HelpParagraph{
                "The win rate is the share of awarded grants among those that were awarded or declined, in whole "
                "percent. Withdrawn requests do not count. While nothing has been decided there is no win rate."},
            HelpHeading{"Fiscal years"},
            HelpParagraph{"A fiscal year is named by the calendar year in which it ends. When yours begins in July, "
                          "FY2027 runs from July 1, 2026 to June 30, 2027. A grant belongs to the year of its key day, "
                          "the first of these dates that is set:"},
            HelpTable{{"Stage", "Key day"},
                {
                    {"Open", "Decision expected, application due, LOI due."},
                    {"Awarded", "Decided, start of the award, decision expected, application due."},
                    {"Declined, Withdrawn", "Decided, decision expected, application due, LOI due."},
                }},
            HelpParagraph{"A grant with none of these dates belongs to no fiscal year."},
        },
        {HelpTopic::payments, HelpTopic::deadlines},
    };
}

HelpArticle payments()
{
    return {
        {
            HelpParagraph{"An award often arrives in parts. Each expected payment has a day and an amount. When it "
                          "arrives, it gets the day on which it came and what came in; without an amount of its own it "
                          "counts as paid in full."},
            HelpTable{{"Figure", "What it adds up"},
                {
                    {"Scheduled", "All payments, received or not."},
                    {"Received", "What came in."},
                    {"Outstanding", "Payments that have not come in."},
                    {"Overdue",
                        "Outstanding payments that were expected before today. One expected today is not overdue."},
                    {"Shortfall",
                        "What received payments fell short of. A payment that was too large does not make up for "
                        "another one."},
                    {"Unscheduled",
                        "The award less all scheduled payments. It is negative when more is scheduled than awarded."},
                }},
            HelpParagraph{"For Unscheduled, the award is the amount awarded; while that is not filled in on an awarded "
                          "grant, the amount asked for."},
            HelpParagraph{"Money counts in the fiscal year in which it came in, whichever year the award belongs to."},
        },
        {HelpTopic::pipeline, HelpTopic::deadlines},
    };
}

} // namespace quillfern::app::help_texts

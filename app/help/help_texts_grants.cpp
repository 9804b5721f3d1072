#include "app/help/help_texts.h"

namespace quillfern::app::help_texts {

HelpArticle start()
{
    return {
        {
            HelpParagraph{"One file is one organization: its funders, its grants with their dates, reports, payments "
                          "and attached files, and its board with the meetings, motions and minutes. A consultant "
                          "keeps one file for each client."},
            HelpParagraph{
                "To look around first, choose File › Open the Sample Organization. It is a made-up food pantry, dated "
                "around today. It opens as a new document, so nothing in your own files changes."},
            HelpHeading{"Where to look"},
            HelpTable{{"Page", "What it shows"},
                {
                    {"Today", "What is due, by how soon: overdue, the next 7 days, 30 days, 90 days, later."},
                    {"Pipeline", "Requests by stage, what they are likely to bring, and the win rate."},
                    {"All Grants", "Every grant in the order of its key day, with totals."},
                    {"Funders",
                        "Each funder with your history: what you asked for, what was awarded, what is due next."},
                }},
            HelpParagraph{"The switch Fiscal year in the tool bar chooses the year that totals count. The search field "
                          "beside it finds a grant by its title or its funder."},
            HelpParagraph{"Overdue dates stand at the top and say how late they are. Red always means that something "
                          "is late, has failed or is about to be removed."},
        },
        {HelpTopic::deadlines, HelpTopic::reports, HelpTopic::votes},
    };
}

HelpArticle reports()
{
    return {
        {
            HelpParagraph{"Most awards ask for reports: one at the end, and often some along the way. Quillfern works "
                          "out their dates from the start and the end of the award and from its report plan. Both "
                          "award dates must be set; without them no reports are made."},
            HelpHeading{"The plan"},
            HelpParagraph{"A plan says how often the funder wants to hear from you, how many days after the end of a "
                          "period a report is due, and how many days after the end of the award the final report is "
                          "due. A grant without a plan of its own follows the plan of the file. In a new file that is "
                          "one final report, due 30 days after the award ends."},
            HelpTable{{"Plan", "Reports"},
                {
                    {"Final report only", "“Final report”, for the whole award."},
                    {"Every year", "“Year 1 report”, “Year 2 report” and so on, the last one being the final report."},
                    {"Every 6 months", "“Half-year 1 report”, “Half-year 2 report” and so on, likewise."},
                    {"Every quarter", "“Quarter 1 report”, “Quarter 2 report” and so on, likewise."},
                    {"Every month", "“Month 1 report”, “Month 2 report” and so on, likewise."},
                }},
            HelpParagraph{"Periods count from the start of the award. In a month that is too short a period begins on "
                          "its last day: monthly periods of an award from January 31 begin on February 28, then on "
                          "March 31. The last period ends with the award, and its report is the final report."},
            HelpHeading{"When a date or the plan changes"},
            HelpParagraph{
                "Making the reports anew replaces only those that nobody has touched. A report that you added "
                "yourself, started or submitted stays exactly as it is, and no second one is made for its due date."},
            HelpHeading{"When to start writing"},
            HelpParagraph{"Each report also has a day to start the draft. It lies 10 days before the report is due; a "
                          "file can use another number of days, and so can a single report."},
        },
        {HelpTopic::deadlines, HelpTopic::calendar},
    };
}

HelpArticle deadlines()
{
    return {
        {
            HelpParagraph{"The list of what is due gathers every open date of every grant and puts it under a heading "
                          "by how far away it is."},
            HelpTable{{"Heading", "Days"},
                {
                    {"Overdue", "Before today."},
                    {"Next 7 days", "Today and the seven days that follow."},
                    {"Next 30 days", "8 to 30 days from today."},
                    {"Next 90 days", "31 to 90 days from today."},
                    {"Later", "91 days or more from today."},
                }},
            HelpParagraph{"On one day an application comes first, then a letter of inquiry, a report, a milestone, a "
                          "draft to start, a payment, and last a decision that you are waiting for."},
            HelpHeading{"When something is done"},
            HelpParagraph{
                "Filling in the date on which a thing was done takes it off the list: the day the letter or the "
                "application was sent, the day the decision came, the day a payment arrived. A report is done when it "
                "is submitted, a draft as soon as you have started it, a milestone when you check it off."},
            HelpParagraph{"A letter of inquiry is listed while the grant is at the stage Prospect or Letter of "
                          "Inquiry, an application up to the stage Drafting, a decision while the request is open. A "
                          "grant that is declined or withdrawn lists nothing more."},
            HelpHeading{"Relative dates"},
            HelpParagraph{"A milestone has either a fixed date or a number of days before or after another date of the "
                          "same grant: the LOI deadline, the application deadline, the decision date, or the start or "
                          "the end of the award. When that date moves, the milestone moves with it."},
            HelpParagraph{"The decision date is the day on which the funder decided; until that is known, the day on "
                          "which you expect the decision. As long as the other date is not set, the milestone has no "
                          "date and is not listed."},
        },
        {HelpTopic::reports, HelpTopic::calendar},
    };
}

} // namespace quillfern::app::help_texts

#include "app/help/help_texts.h"

namespace quillfern::app::help_texts {

HelpArticle actions()
{
    return {
        {
            HelpParagraph{
                "An action item says who does what by when. It has an owner, who is a member of the board or anyone "
                "else by name, a due date if there is one, and the meeting or the motion that it comes from."},
            HelpTable{{"State", "What it means"},
                {
                    {"Open", "Nothing has happened yet."},
                    {"In progress", "Somebody has begun."},
                    {"Done", "Finished; the day is kept."},
                    {"Dropped", "Not pursued any further, and kept for the record."},
                }},
            HelpParagraph{"Items that are open or in progress carry into the agenda of each next meeting until they "
                          "are done or dropped."},
            HelpParagraph{"When reminders are on, an item with a due date reminds you 2 days before it, or as many "
                          "days as you choose, from 0 to 90."},
        },
        {HelpTopic::live, HelpTopic::calendar},
    };
}

HelpArticle minutes()
{
    return {
        {
            HelpParagraph{"The minutes of a meeting are a draft first, then sent to the board for approval, then "
                          "approved. They may also be approved without having been sent out."},
            HelpTable{{"State", "On paper"},
                {
                    {"Draft", "Marked DRAFT on every page."},
                    {"Sent for approval", "Marked DRAFT – PENDING APPROVAL on every page."},
                    {"Approved", "No mark; the date of approval is stated."},
                }},
            HelpHeading{"Approval"},
            HelpParagraph{"Approved minutes record the day and how it was done: the number of the motion, or words "
                          "such as “by general consent”. The day can’t be before the meeting. When a motion on an "
                          "agenda item for approving minutes carries, the minutes are marked approved with its number; "
                          "when it fails, they stay as they were."},
            HelpParagraph{"Approved minutes are locked, and so is their meeting."},
            HelpHeading{"Corrections"},
            HelpParagraph{"To correct approved minutes, reopen them and say why. They go back to draft, and the board "
                          "approves them again. Minutes that were only sent out go back to draft without a reason."},
            HelpParagraph{"Every step is kept in the history of the minutes with its date; nothing in it is ever "
                          "changed or removed."},
        },
        {HelpTopic::live, HelpTopic::archive},
    };
}

HelpArticle archive()
{
    return {
        {
            HelpParagraph{"The minute book holds the meetings of one calendar year: their motions with their numbers "
                          "and results, and the state of their minutes."},
            HelpParagraph{"Searching looks through notes, motions and action items."},
            HelpParagraph{"The next number of a year is one more than the highest in the book. A number that you have "
                          "typed yourself is kept, and counts like any other."},
            HelpParagraph{"Whether a motion carried is worked out from its recorded vote and its rule each time it is "
                          "shown. If you correct a count, the result follows."},
        },
        {HelpTopic::minutes, HelpTopic::votes, HelpTopic::handoff},
    };
}

HelpArticle handoff()
{
    return {
        {
            HelpParagraph{"A new secretary needs the whole record and nothing more. The board leaves the file as a "
                          "board file, a folder that ends in .marrowind: members, meetings, agendas, minutes, motions "
                          "and action items. Grants are not in it."},
            HelpParagraph{"The board file holds everything as plain text (JSON), together with a short read-me for "
                          "whoever opens the folder without the program. There is no account or server behind it."},
            HelpParagraph{"The hand-off folder goes further: the board file, every meeting’s PDFs, the action items "
                          "and a read-me."},
            HelpParagraph{"What you hand over is a copy. Agree on the day from which the next secretary’s copy is the "
                          "one that counts, so that two records do not grow apart."},
        },
        {HelpTopic::archive, HelpTopic::sharing},
    };
}

} // namespace quillfern::app::help_texts

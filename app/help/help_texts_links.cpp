#include "app/help/help_texts.h"

namespace quillfern::app::help_texts {

HelpArticle people()
{
    return {
        {
            HelpParagraph{
                "People are those whom the organization deals with besides its board: staff, volunteers, advisors, and "
                "the program officers of funders. A program officer can belong to a funder of the same file."},
            HelpParagraph{"Members of the board are kept with the board, with their roles and terms; see “Members, "
                          "roles and quorum”. A funder’s contact is kept with the funder."},
            HelpParagraph{"A person has a role, a title, an e-mail address, a phone number and notes. Quillfern writes "
                          "to nobody: the addresses are for you."},
        },
        {HelpTopic::board},
    };
}

HelpArticle grants_and_board()
{
    return {
        {
            HelpParagraph{
                "Many boards approve an application before it goes out. A grant can be put on the agenda of the "
                "board’s next planned meeting, under New Business; if no meeting is planned, plan one first."},
            HelpParagraph{"A motion can be linked to a grant. When it is voted on, the grant shows the board’s "
                          "decision with the motion’s number: approved when it carried, not approved when it failed."},
            HelpParagraph{"The link works both ways and changes nothing by itself: the grant’s stage, dates and "
                          "amounts stay as you set them."},
        },
        {HelpTopic::agenda, HelpTopic::votes},
    };
}

HelpArticle marrowind()
{
    return {
        {
            HelpParagraph{
                "A board that was kept in Marrowind comes in from its board file: choose the .marrowind folder, or the "
                "Board.json inside it. Members, meetings, motions and action items come along."},
            HelpTable{{"What is found", "What happens"},
                {
                    {"No board in this file yet", "The board is brought in, in one step that Edit › Undo takes back."},
                    {"The same board already", "Nothing changes."},
                    {"Another board already",
                        "Nothing changes. Make a new file and import the board there: each file is one organization."},
                    {"A board file from a newer version", "It is refused, and nothing changes."},
                    {"Not a board file", "It is refused, and nothing changes."},
                }},
            HelpParagraph{"The board file itself is only read, never written."},
        },
        {HelpTopic::handoff, HelpTopic::board},
    };
}

HelpArticle portfolio()
{
    return {
        {
            HelpParagraph{"A consultant keeps one file for each client, and no file knows of another. That way a "
                          "client’s file can be handed over as it is."},
            HelpParagraph{"Looked at together, each client is one row with its own totals, in its own currency and "
                          "fiscal year. In a common list of dates each line begins with the name of the client, and "
                          "the same rules decide what is overdue or due soon."},
            HelpParagraph{"The status report for a client is made from that client’s file alone."},
        },
        {HelpTopic::start, HelpTopic::sharing},
    };
}

} // namespace quillfern::app::help_texts

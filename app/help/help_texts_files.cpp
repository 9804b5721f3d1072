#include "app/help/help_texts.h"

namespace quillfern::app::help_texts {

HelpArticle files()
{
    return {
        {
            HelpParagraph{"Award letters, agreements, budgets and anything else that belongs to a grant can be "
                          "attached to it. The file is copied into the organization’s file, so one backup holds "
                          "everything. The original stays where it is; later changes to it do not reach the copy."},
            HelpParagraph{"Files up to 100 MB can be attached, so the document stays easy to move and back up. An "
                          "empty file is refused."},
            HelpParagraph{"An attached file keeps its name on the grant. Inside the document it is stored under a name "
                          "of its own, so two files that are both called “Budget.xlsx” never get in each other’s way."},
            HelpHeading{"When a file is missing"},
            HelpParagraph{"If another program has taken an attached file out of the document, its record stays, and "
                          "the grant says “This file is missing”. Remove it and attach it again."},
            HelpParagraph{"A file that was put into the document’s folder Attachments by hand, and that no grant "
                          "names, is left there."},
        },
        {HelpTopic::sharing},
    };
}

HelpArticle importing()
{
    return {
        {
            HelpParagraph{"Grants come in from a spreadsheet that is saved as CSV. Its first row holds the headings of "
                          "the columns, and each further row is one grant."},
            HelpHeading{"Columns"},
            HelpParagraph{"These are the columns of a spreadsheet that Quillfern exports: Grant, Funder, Stage, Ask, "
                          "Awarded, Probability, LOI due, Application due, Submitted, Decision expected, Decided, "
                          "Award start, Award end, Next report due, Program, Owner and Notes. A sheet with these "
                          "headings, in English or in Spanish, fits as it is."},
            HelpTable{{"Value", "How an exported sheet writes it"},
                {
                    {"Amounts", "12500.00: no currency sign, a point before the cents."},
                    {"Dates", "2027-03-15: year, month, day."},
                    {"Probability", "60%. Empty when the chance of the stage counts."},
                    {"Stage",
                        "In words: Prospect, Letter of Inquiry, Drafting, Submitted, Awarded, Declined, Withdrawn."},
                    {"Next report due", "The earliest report that is not submitted."},
                }},
            HelpHeading{"How the file is read"},
            HelpParagraph{"Cells may be separated by commas, semicolons or tabs; the one that occurs most in the first "
                          "row is taken, and in doubt the comma. The text may be UTF-8 or UTF-16, or come from an "
                          "older Windows or Mac program."},
            HelpParagraph{"A cell in quotation marks may hold separators and line breaks. If a quotation mark is "
                          "opened and never closed, its row and everything after it cannot be read, so look at the "
                          "last rows. Empty rows at the end do not count."},
            HelpHeading{"Afterward"},
            HelpParagraph{"An import is one step: Edit › Undo takes the whole import back out."},
            HelpParagraph{"In the other direction, an exported cell that begins like a formula gets an apostrophe in "
                          "front, so that no spreadsheet program runs it. Numbers stay as they are."},
        },
        {HelpTopic::pipeline, HelpTopic::deadlines},
    };
}

HelpArticle pdf()
{
    return {
        {
            HelpParagraph{"The board summary is the report on grants for the board’s meeting papers: where the "
                          "requests stand, what was awarded and received, and what is due next. It stands under the "
                          "organization’s name, address and logo."},
            HelpParagraph{"Its totals are those of one fiscal year, the one that is chosen in the tool bar, and they "
                          "follow the same rules as the Pipeline page. A grant belongs to the year of its key day."},
            HelpParagraph{"The paper is US Letter or A4. Nothing depends on color: every state has its word, so a "
                          "black-and-white copy says the same."},
            HelpParagraph{"A PDF is a picture of one day. It does not change when the file changes; make a new one "
                          "before each meeting."},
        },
        {HelpTopic::pipeline, HelpTopic::grantsAndBoard},
    };
}

HelpArticle calendar()
{
    return {
        {
            HelpParagraph{"Dates can go from the file into your calendar in two ways: as a calendar file (.ics) that "
                          "any calendar program reads, or straight into the calendar of this computer."},
            HelpHeading{"What goes along"},
            HelpTable{{"Date", "Exported"},
                {
                    {"LOI, application and report deadlines, milestones", "Always."},
                    {"Days to start a report draft", "When you ask for them."},
                    {"Expected payments", "When you ask for them."},
                    {"Expected decisions", "When you ask for them."},
                    {"Anything that is done", "Never."},
                }},
            HelpParagraph{"Each date is an all-day event and does not make the day look busy. An alert, if you want "
                          "one, comes at 9 in the morning, as many days ahead as you choose."},
            HelpParagraph{"The same date always has the same mark inside the calendar file, so importing a newer file "
                          "updates the events instead of doubling them. What was added straight to the calendar is "
                          "noted in the document, so that nothing is added twice."},
            HelpHeading{"Reminders"},
            HelpParagraph{"Reminders are off until you turn them on. LOI, application and report deadlines then remind "
                          "you a week ahead, the day before and on the day, or on the days that you choose; draft days "
                          "and expected payments remind you once, on the day; an action item of the board reminds you "
                          "2 days before it is due. They come at 9 in the morning unless you choose another hour."},
            HelpParagraph{"Reminders are set for the files that you open on this computer."},
        },
        {HelpTopic::deadlines, HelpTopic::actions},
    };
}

} // namespace quillfern::app::help_texts

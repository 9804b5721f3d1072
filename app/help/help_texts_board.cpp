#include "app/help/help_texts.h"

namespace quillfern::app::help_texts {

HelpArticle board()
{
    return {
        {
            HelpParagraph{"The board keeps a list of its members with their roles, in this order: president (chair), "
                          "vice president, secretary, treasurer, director, ex officio, staff or manager, other. Within "
                          "a role names are in alphabetical order."},
            HelpParagraph{"Everyone votes except ex officio members and staff, unless you say otherwise for a member. "
                          "Whoever leaves the board is marked as no longer in office and stays in the file, so old "
                          "minutes and votes keep their names."},
            HelpHeading{"Voting seats"},
            HelpParagraph{"The number of voting seats is the number of voting members in office. If your bylaws fix "
                          "the number of seats, you can enter it; then vacant seats count too."},
            HelpHeading{"Quorum"},
            HelpTable{{"Rule", "How many must be present"},
                {
                    {"Majority of the seats", "More than half: 4 of 7, 5 of 8. This is the rule of a new board."},
                    {"Share of the seats", "The share, rounded up to a whole member: a third of 10 is 4."},
                    {"Fixed number", "That number, however many seats there are."},
                }},
            HelpParagraph{"A quorum is never less than one. Present are voting members in the room and those who take "
                          "part remotely; whoever is excused, absent or has left early is not."},
            HelpParagraph{"Without a quorum a vote can still be recorded; it carries a warning, and what follows from "
                          "it is for your board to decide."},
        },
        {HelpTopic::votes, HelpTopic::live},
    };
}

HelpArticle agenda()
{
    return {
        {
            HelpParagraph{"An agenda has nine sections, always in this order: Opening, Minutes, Consent agenda, "
                          "Reports, Old business, New business, Open forum, Executive session and Closing. Each item "
                          "can have a presenter and a number of minutes, from which the running times follow."},
            HelpParagraph{"A new board meets at 7:00 in the evening for 90 minutes until you set its usual time, "
                          "length and place."},
            HelpHeading{"The consent agenda"},
            HelpParagraph{"The consent agenda gathers routine items that the board adopts together, with one motion "
                          "and without discussion. A member who wants to discuss one of them asks to have it taken off "
                          "first; it then goes under another section."},
            HelpHeading{"What carries over"},
            HelpParagraph{"A new meeting takes over what earlier ones left: minutes that are not approved, under "
                          "Minutes; motions that were tabled or postponed and not taken up again, and action items "
                          "that are neither done nor dropped, under Old business. A special meeting is called for its "
                          "purpose alone and takes over nothing."},
            HelpParagraph{
                "When a motion carries under the item that stands for earlier minutes, those minutes are approved."},
            HelpHeading{"Notices"},
            HelpParagraph{"The notice of a meeting says what kind of meeting it is, when and where it takes place and, "
                          "for a special meeting, what for. How many days ahead it must go out is for your bylaws to "
                          "say. Quillfern makes the notice; you send it."},
        },
        {HelpTopic::live, HelpTopic::minutes},
    };
}

HelpArticle live()
{
    return {
        {
            HelpParagraph{
                "The secretary takes the minutes while the meeting runs, in the order in which things happen."},
            HelpHeading{"In order"},
            HelpTable{{"Step", "What is recorded"},
                {
                    {"Attendance",
                        "Each member: present, present remotely, absent, excused, or left early. The quorum counts "
                        "along. Guests have a line of their own."},
                    {"Call to Order", "The time at which the meeting started."},
                    {"Each item",
                        "Notes on what was reported, discussed and decided; motions with their votes; action items."},
                    {"Adjourn", "The time at which the meeting ended."},
                }},
            HelpParagraph{"What belongs to no item goes under “Other notes and motions”."},
            HelpParagraph{"Notes of an executive session stay in the file but are not printed in the minutes. Record "
                          "any decision as a motion."},
            HelpParagraph{"Minutes record what was done, not everything that was said. Once they are approved, the "
                          "meeting is locked; reopen the minutes for a correction to change anything."},
        },
        {HelpTopic::votes, HelpTopic::minutes, HelpTopic::actions},
    };
}

HelpArticle votes()
{
    return {
        {
            HelpParagraph{"Every motion gets a number. Numbers run by year (2026-001, 2026-002…), and the next one is "
                          "always one more than the highest used that year, so a deleted motion leaves a gap. With a "
                          "prefix, numbers count from 001 under that prefix."},
            HelpParagraph{
                "A motion is decided by two things: how many ayes it needs, and what those ayes are counted against. "
                "Majority of votes cast is the usual default. Your bylaws say which motions need two-thirds."},
            HelpHeading{"What the vote is counted against"},
            HelpTable{{"Counted against", "What it means"},
                {
                    {"Votes cast", "Ayes and nays only. Abstentions and recusals don’t count."},
                    {"Members present",
                        "Everyone present except the recused. An abstention stays in the count, so it weighs against "
                        "the motion."},
                    {"The entire board", "All voting seats, whoever is in the room."},
                }},
            HelpParagraph{"A majority is more than half, so a tie fails. Two-thirds is rounded up to a whole vote. One "
                          "nay defeats a motion that must be unanimous. At least one aye is always needed."},
            HelpHeading{"How the vote is taken"},
            HelpTable{{"Method", "What is counted"},
                {
                    {"Counted", "The numbers that you enter."},
                    {"Roll call", "What each member answered."},
                    {"General consent",
                        "Everyone present and not recused, in favor. Use a counted vote if anyone objects."},
                }},
            HelpHeading{"When something looks wrong"},
            HelpParagraph{"Without a quorum, with more votes than people present, or when nobody voted for or against, "
                          "the motion shows a warning. The vote is still recorded as you entered it: what the board "
                          "does about it is the board’s decision."},
        },
        {HelpTopic::board, HelpTopic::live},
    };
}

} // namespace quillfern::app::help_texts

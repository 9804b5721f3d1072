#include "app/help/help_texts.h"

namespace quillfern::app::help_texts {

HelpArticle sharing()
{
    return {
        {
            HelpParagraph{
                "A document is a package: a folder whose name ends in .quillfern, shown as one file where the desktop "
                "can do so. It holds the records as readable text (Quillfern.json), the attached files (Attachments) "
                "and the logo (Logo.png). It can be backed up, copied, zipped or sent, always as a whole."},
            HelpHeading{"Saving"},
            HelpParagraph{
                "Saving writes a complete new copy beside the old one and then exchanges the two in one step. What "
                "stands on disk is always either the old document or the new one, even if the power fails in between."},
            HelpParagraph{"A document that has a file saves itself: half a minute after the last change, when you turn "
                          "to another program, and when its window closes. A new document asks for a name and a place "
                          "the first time. What is not in a file yet is also noted aside every few seconds; if the "
                          "program or the computer stops, the next start offers it to you."},
            HelpParagraph{"Each save keeps the state before it on this computer. File › Revert to Saved lists them; "
                          "the one you choose takes the place of what the window shows, and Edit › Undo brings that "
                          "back."},
            HelpHeading{"With others"},
            HelpParagraph{"Two people shouldn’t edit the same file at the same time: there is no way to merge their "
                          "changes. In a shared or synced folder, let one person finish, and wait until the folder has "
                          "synced, before the next one opens the file."},
            HelpParagraph{"If another program changes a file that is open, nothing is written over: Keep Both saves "
                          "your version beside the other, and Reload shows the other one. A file that is open in "
                          "another program can be looked at, but not changed."},
            HelpParagraph{"If a sync program leaves two copies behind, open both, decide which one is right, and put "
                          "the other one away."},
            HelpHeading{"Backups"},
            HelpParagraph{"Back up the file like any other important document, and keep more than one backup. A file "
                          "that can’t be read is never written to; open the backup instead. A file from a newer "
                          "version of Quillfern is left exactly as it is until you update."},
        },
        {HelpTopic::files, HelpTopic::privacy},
    };
}

HelpArticle privacy()
{
    return {
        {
            HelpParagraph{"Quillfern sends nothing anywhere. It has no account and no server, and it counts nothing. "
                          "It makes files, and you decide where they go."},
            HelpParagraph{
                "Two commands reach beyond this computer, and only when you choose them. Check for Updates… fetches "
                "the list of versions from the maker’s web site; it tells that site the version you have, and nothing "
                "about you or your files. Email Support opens a new message in your own mail program."},
            HelpParagraph{"Dates that you add to your calendar and reminders stay on this computer, unless you have "
                          "set up your calendar to sync with a service."},
            HelpParagraph{"The file is not encrypted: whoever can open the folder can read it. If it holds anything "
                          "sensitive, encrypt the disk and take care where copies and backups go."},
        },
        {HelpTopic::sharing, HelpTopic::notDo},
    };
}

HelpArticle not_do()
{
    return {
        {
            HelpTable{{"Quillfern doesn’t", "Because"},
                {
                    {"Give legal advice",
                        "Your bylaws and state law say what makes a quorum, which vote a motion needs, how early a "
                        "notice goes out and what minutes must hold. Quillfern counts by the rules that you set."},
                    {"Send anything",
                        "It makes files and messages; you send them. It submits no application or report to a funder."},
                    {"Keep the books",
                        "It follows what was awarded and what came in, by grant. Spending, restricted funds and "
                        "receipts belong in your accounting."},
                    {"Find funders",
                        "It keeps what you know about them. Details taken from an IRS Form 990-PF are as filed; verify "
                        "them with the funder."},
                    {"Convert currencies", "All amounts of a file are in its one currency."},
                    {"Let several people edit at once", "One person edits a file at a time."},
                    {"Encrypt the file", "Use the encryption of your disk."},
                }},
            HelpParagraph{"Not legal advice: check your bylaws and state law."},
        },
        {HelpTopic::privacy, HelpTopic::sharing},
    };
}

} // namespace quillfern::app::help_texts

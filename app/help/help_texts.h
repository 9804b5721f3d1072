#pragma once

#include "app/help/help_topics.h"

/// The articles of the help window, in the files help_texts_*.cpp by subject.
namespace quillfern::app::help_texts {

// help_texts_grants.cpp
HelpArticle start();
HelpArticle reports();
HelpArticle deadlines();

// help_texts_money.cpp
HelpArticle pipeline();
HelpArticle payments();

// help_texts_files.cpp
HelpArticle files();
HelpArticle importing();
HelpArticle pdf();
HelpArticle calendar();

// help_texts_board.cpp
HelpArticle board();
HelpArticle agenda();
HelpArticle live();
HelpArticle votes();

// help_texts_records.cpp
HelpArticle actions();
HelpArticle minutes();
HelpArticle archive();
HelpArticle handoff();

// help_texts_links.cpp
HelpArticle people();
HelpArticle grants_and_board();
HelpArticle marrowind();
HelpArticle portfolio();

// help_texts_care.cpp
HelpArticle sharing();
HelpArticle privacy();
HelpArticle not_do();

} // namespace quillfern::app::help_texts

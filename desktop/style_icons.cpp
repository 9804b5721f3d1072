#include "desktop/style.h"

namespace quillfern::desktop::style {

const char* icon_name(QStyle::StandardPixmap standard_icon)
{
    switch (standard_icon) {
    case QStyle::SP_ToolBarHorizontalExtensionButton:
    case QStyle::SP_ToolBarVerticalExtensionButton:
        return "more";
    case QStyle::SP_ArrowBack:
    case QStyle::SP_FileDialogBack:
        return "arrow-left";
    case QStyle::SP_ArrowForward:
        return "arrow-right";
    case QStyle::SP_FileDialogToParent:
        return "arrow-up";
    case QStyle::SP_FileDialogNewFolder:
        return "folder-add";
    case QStyle::SP_FileDialogListView:
        return "list";
    case QStyle::SP_FileDialogDetailedView:
        return "table";
    case QStyle::SP_DirIcon:
    case QStyle::SP_DirClosedIcon:
    case QStyle::SP_DirOpenIcon:
    case QStyle::SP_DirLinkIcon:
        return "folder";
    case QStyle::SP_FileIcon:
    case QStyle::SP_FileLinkIcon:
        return "file";
    case QStyle::SP_ComputerIcon:
    case QStyle::SP_DriveHDIcon:
        return "computer";
    case QStyle::SP_DirHomeIcon:
        return "home";
    case QStyle::SP_LineEditClearButton:
    case QStyle::SP_DialogCancelButton:
    case QStyle::SP_DialogCloseButton:
        return "close";
    default:
        return nullptr;
    }
}

} // namespace quillfern::desktop::style

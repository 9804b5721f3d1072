#pragma once

#include "grants/org_package.h"

/// Edits of whole grants, from one package value to the next.
namespace quillfern::grants {

/// Removes the grant with everything under it: its dates, reports, payments, milestones, the records of its files and
/// their bytes. Bytes that another grant's record names stay. Without such a grant the package comes back as it is.
///
/// What is noted about the user's calendar stays, because the events are still there.
OrgPackage without_grant(const OrgPackage& package, const Uuid& grant);

} // namespace quillfern::grants

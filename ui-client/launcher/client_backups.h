// The backups of the installed client that installations have left, mostly after interruptions.
//
// Nothing is logged here, and nothing is thrown.
#pragma once

#include <string>
#include <vector>

#include "client_bundle.h"

/// The paths of the installed bundle and of its backups.
struct ClientPaths {
    std::string app;                   ///< The installed bundle.
    std::vector<std::string> backups;  ///< All backup names, in the order in which they are used.
    BundleParts parts;                 ///< The same for the installed bundle and the backups.
};

/// What was found under one backup name.
struct Backup {
    std::string path;
    ClientBundle bundle;
};

/// Inspects all backup names, in their order.
std::vector<Backup> InspectBackups(const ClientPaths& paths);

/// Returns the whole backup with the greatest build, or null if no backup is whole. Of several with
/// that build it returns the last one, which is usually the newest.
const Backup* FindBestBackup(const std::vector<Backup>& backups);

/// Removes the backups that are incomplete. A backup that cannot be removed stays.
void RemoveIncompleteBackups(const std::vector<Backup>& backups, const BundleParts& parts);

/// Makes all backup names free for the next installation, as far as that is safe. Whole backups and
/// backups that could not be inspected stay unless the installed client is whole. A backup that
/// cannot be removed is renamed to a random name in the same folder.
void FreeBackupNames(const ClientPaths& paths);

/// Makes the path of the installed bundle free. Removes what is there, or renames it to a free
/// backup name, or to a random name in the same folder. Returns whether the path is free now.
bool FreeAppPath(const ClientPaths& paths);

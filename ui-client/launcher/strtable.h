// StrTable: every text the client shows, by fixed id (0-349), with its key and English text.
//
// Texts are translated by their English text through QCoreApplication::translate (context
// "global"), so entries that share a text share its translation. Ids are compiled into callers
// as literals: the order of the table never changes.
#ifndef UI_CLIENT_LAUNCHER_STRTABLE_H
#define UI_CLIENT_LAUNCHER_STRTABLE_H

#include <QString>

namespace StrTable {

const int kStrCount = 350;

// Fills the table; call once on the main thread after installing the translator.
void InitStrTable();
// The text of id in the current language, with the escapes \n and \t turned into a line feed and
// a tab. Empty for an id outside 0-349 or before InitStrTable.
QString LoadStr(int id);
// The first id whose key equals key ignoring case, or -1.
int LookupStrID(QString key);

}  // namespace StrTable

#endif

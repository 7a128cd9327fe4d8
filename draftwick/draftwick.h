#pragma once

/// All of Draftwick: what a program includes. Services in place of the system's need platform/Platform.h, too.
#include <draftwick/base/Color.h>
#include <draftwick/base/Error.h>
#include <draftwick/base/Version.h>
#include <draftwick/content/Field.h>
#include <draftwick/content/Paragraph.h>
#include <draftwick/content/Section.h>
#include <draftwick/content/Special.h>
#include <draftwick/content/TextItem.h>
#include <draftwick/core/Classes.h>
#include <draftwick/core/Document.h>
#include <draftwick/core/Properties.h>
#include <draftwick/drawing/Shape.h>
#include <draftwick/format/Fonts.h>
#include <draftwick/format/Lists.h>
#include <draftwick/format/Styles.h>
#include <draftwick/model/Class.h>
#include <draftwick/structure/Bookmark.h>
#include <draftwick/structure/Cell.h>
#include <draftwick/structure/Columns.h>
#include <draftwick/structure/Footnote.h>
#include <draftwick/structure/Header.h>
#include <draftwick/structure/Table.h>
#include <draftwick/viewer/AutomationObject.h>
#include <draftwick/viewer/ViewerKind.h>

// The pages around the titles: their templates filled with the lists.
#pragma once

#include "html_export/SiteList.h"
#include "html_export/SiteRun.h"

#include <utility>

namespace ostrand {

/// The first template of the site's frame that is not where the program keeps them, below its data; empty when all are.
QString MissingSiteTemplate(const Session &session);

/// Placeholders and what stands in for them.
using SiteValues = std::vector<std::pair<QLatin1String, QString>>;

/// A template with its placeholders filled in one walk, so that a text which looks like one stays.
QString FillSiteTemplate(const QString &text, const SiteValues &values);
/// Writes all pages of the frame, without those whose template vanished meanwhile. Throws SiteFault.
void WriteSiteFrame(const SiteRun &run, const SiteList &list);

} // namespace ostrand

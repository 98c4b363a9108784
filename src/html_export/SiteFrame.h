// The pages around the titles: their templates filled with the lists.
#pragma once

#include "html_export/SiteList.h"
#include "html_export/SiteRun.h"

#include <utility>

namespace ostrand {

/// Placeholders and what stands in for them.
using SiteValues = std::vector<std::pair<QLatin1String, QString>>;

/// A template with its placeholders filled in one walk, so that a text which looks like one stays.
QString FillSiteTemplate(const QString &text, const SiteValues &values);
/// Writes all pages of the frame; a missing template is passed over. Throws SiteFault.
void WriteSiteFrame(const SiteRun &run, const SiteList &list);

} // namespace ostrand

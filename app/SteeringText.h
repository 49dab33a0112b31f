#pragma once

#include <QString>
#include <QStringList>
#include <vector>

class HyperboloidFrame;

/** Which helix each surface steers, in words. */
namespace SteeringText {

/** All surfaces in one line, and what to do where none is steered. */
QString of(const std::vector<HyperboloidFrame*>& surfaces);

/** A line for each surface. */
QStringList details(const std::vector<HyperboloidFrame*>& surfaces);

} // namespace SteeringText

// SPDX-License-Identifier: MIT
/// @file
/// The whole public interface.
#ifndef TOVANGL_TOVANGL_H
#define TOVANGL_TOVANGL_H

#include <tovangl/AxisProperty.h>
#include <tovangl/Color.h>
#include <tovangl/Compression.h>
#include <tovangl/Diagnosis.h>
#include <tovangl/Export.h>
#include <tovangl/Font.h>
#include <tovangl/Graph.h>
#include <tovangl/HorizontalBarGraph.h>
#include <tovangl/MessageHandler.h>
#include <tovangl/PieGraph.h>
#include <tovangl/Point.h>
#include <tovangl/Problem.h>
#include <tovangl/Rectangle.h>
#include <tovangl/Setting.h>
#include <tovangl/Slice.h>
#include <tovangl/Theme.h>
#include <tovangl/Version.h>
#include <tovangl/VerticalBarGraph.h>

#endif

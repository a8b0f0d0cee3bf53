#pragma once

// All the controls that a window can be made of.

#include "forms/buttons.h"
#include "forms/combo_box.h"
#include "forms/label.h"
#include "forms/list_view.h"
#include "forms/pictures.h"
#include "forms/shapes.h"
#include "forms/text_box.h"

#include "app/Document.h"

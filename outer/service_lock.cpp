#include <pthread.h>

#include "orb/services.h"
#include "outer/boundary.h"

namespace {
constinit pthread_mutex_t the_lock = PTHREAD_MUTEX_INITIALIZER;
}

ORB_EXPORT void orb_serv_lock(void) { pthread_mutex_lock(&the_lock); }
ORB_EXPORT void orb_serv_unlock(void) { pthread_mutex_unlock(&the_lock); }

#ifndef KX_PLATFORM_THREAD_ANNOTATIONS_H
#define KX_PLATFORM_THREAD_ANNOTATIONS_H

// Lets clang prove at compile time that what a lock guards is touched only under that lock. Other
// compilers see nothing.
#if defined(__clang__)
#define KX_ANNOTATE(x) __attribute__((x))
#else
#define KX_ANNOTATE(x)
#endif

#define KX_CAPABILITY(name) KX_ANNOTATE(capability(name))
#define KX_SCOPED_CAPABILITY KX_ANNOTATE(scoped_lockable)
#define KX_GUARDED_BY(lock) KX_ANNOTATE(guarded_by(lock))
#define KX_REQUIRES(...) KX_ANNOTATE(requires_capability(__VA_ARGS__))
#define KX_EXCLUDES(...) KX_ANNOTATE(locks_excluded(__VA_ARGS__))
#define KX_ACQUIRE(...) KX_ANNOTATE(acquire_capability(__VA_ARGS__))
#define KX_RELEASE(...) KX_ANNOTATE(release_capability(__VA_ARGS__))

#endif  // KX_PLATFORM_THREAD_ANNOTATIONS_H

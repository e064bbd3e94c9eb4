import java.io.IOException;
import java.io.PrintWriter;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import java.util.Locale;
import javax.tools.Diagnostic;
import javax.tools.DiagnosticCollector;
import javax.tools.JavaCompiler;
import javax.tools.JavaFileObject;
import javax.tools.StandardJavaFileManager;
import javax.tools.ToolProvider;

/**
 * Compiles Java projects, each in one task, all in one process:
 *
 * <pre>java CompileAll.java CLASSES CLASSPATH STUBS FOLDER...</pre>
 *
 * Each FOLDER is compiled with the sources below STUBS into the folder CLASSES. Prints a line for each, "FOLDER CLASSES ERRORS-AND-WARNINGS", and behind it the first of these.
 */
final class CompileAll {
    private static final int SHOWN = 5;

    public static void main(String[] arguments) throws IOException {
        JavaCompiler compiler = ToolProvider.getSystemJavaCompiler();
        List<String> options = List.of("--release", "17", "-encoding", "UTF-8", "-proc:none", "-Xlint:all,-path",
            "-parameters", "-d", arguments[0], "-cp", arguments[1]);
        List<Path> stubs = sourcesBelow(Path.of(arguments[2]));
        try (StandardJavaFileManager files = compiler.getStandardFileManager(null, Locale.ROOT, StandardCharsets.UTF_8)) {
            for (String folder : List.of(arguments).subList(3, arguments.length)) {
                List<Path> sources = sourcesBelow(Path.of(folder));
                int count = sources.size();
                sources.addAll(stubs);
                DiagnosticCollector<JavaFileObject> found = new DiagnosticCollector<>();
                boolean isCompiled = compiler.getTask(new PrintWriter(System.out), files, found,
                    options, null, files.getJavaFileObjectsFromPaths(sources)).call();
                List<Diagnostic<? extends JavaFileObject>> all = found.getDiagnostics();
                System.out.println(folder + " " + count + " " + (isCompiled ? all.size() : Math.max(1, all.size())));
                all.stream().limit(SHOWN).forEach(System.out::println);
            }
        }
    }

    private static List<Path> sourcesBelow(Path folder) throws IOException {
        try (var paths = Files.walk(folder)) {
            return new java.util.ArrayList<>(paths.filter(path -> path.toString().endsWith(".java")).sorted().toList());
        }
    }
}

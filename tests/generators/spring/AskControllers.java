import com.fasterxml.jackson.databind.DeserializationFeature;
import com.fasterxml.jackson.databind.JsonNode;
import com.fasterxml.jackson.databind.ObjectMapper;
import com.fasterxml.jackson.databind.SerializationFeature;
import com.fasterxml.jackson.databind.node.ObjectNode;
import java.io.BufferedReader;
import java.io.IOException;
import java.io.InputStreamReader;
import java.io.PrintStream;
import java.lang.reflect.Constructor;
import java.lang.reflect.Method;
import java.lang.reflect.Proxy;
import java.net.URI;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.HashMap;
import java.util.List;
import java.util.Map;
import javax.servlet.http.Cookie;
import org.springframework.core.convert.converter.ConverterFactory;
import org.springframework.format.support.DefaultFormattingConversionService;
import org.springframework.http.HttpMethod;
import org.springframework.http.MediaType;
import org.springframework.http.converter.json.MappingJackson2HttpMessageConverter;
import org.springframework.mock.web.MockHttpServletResponse;
import org.springframework.test.web.servlet.MockMvc;
import org.springframework.test.web.servlet.MvcResult;
import org.springframework.test.web.servlet.request.MockHttpServletRequestBuilder;
import org.springframework.test.web.servlet.request.MockMvcRequestBuilders;
import org.springframework.test.web.servlet.setup.MockMvcBuilders;

/**
 * Calls generated controllers with their generated services in Spring's mock of the dispatcher:
 *
 * <pre>java -cp JARS:CLASSES AskControllers.java CLASSES</pre>
 *
 * Reads requests from standard input, each a line of JSON: an object with the package of the "server", "method", "url", "body", and
 * objects of "query", "headers" and "cookies". Writes a line for each, an object with "status", the "reason" for that, the JSON of
 * the "answer" and the "arguments" that the service got, or with the "failure".
 */
final class AskControllers {
    private static final ObjectMapper JSON = new ObjectMapper()
        .disable(SerializationFeature.FAIL_ON_EMPTY_BEANS)
        .disable(DeserializationFeature.FAIL_ON_UNKNOWN_PROPERTIES);

    private final Path classes;
    private final Map<String, MockMvc> servers = new HashMap<>();
    private final List<Object> arguments = new ArrayList<>();

    private AskControllers(Path classes) {
        this.classes = classes;
    }

    public static void main(String[] folders) throws Exception {
        PrintStream out = new PrintStream(System.out, true, StandardCharsets.UTF_8);
        AskControllers asker = new AskControllers(Path.of(folders[0]));
        BufferedReader lines = new BufferedReader(new InputStreamReader(System.in, StandardCharsets.UTF_8));
        for (String line = lines.readLine(); line != null; line = lines.readLine())
            out.println(asker.ask(JSON.readTree(line)));
    }

    private MockMvc serverOf(String packageName) throws Exception {
        List<Object> controllers = new ArrayList<>();
        for (Path file : classesBelow(classes.resolve(packageName.replace('.', '/')))) {
            String name = classes.relativize(file).toString().replace('/', '.').replaceFirst("\\.class$", "");
            controllers.add(controllerOf(Class.forName(name)));
        }
        DefaultFormattingConversionService conversion = new DefaultFormattingConversionService();
        conversion.addConverterFactory(recordsOfTexts());
        return MockMvcBuilders.standaloneSetup(controllers.toArray())
            .setConversionService(conversion)
            .setMessageConverters(new MappingJackson2HttpMessageConverter(JSON))
            .setUseSuffixPatternMatch(false) // as it is since version 5.3
            .build();
    }

    private static List<Path> classesBelow(Path folder) throws IOException {
        try (var paths = Files.walk(folder)) {
            return paths.filter(path -> path.toString().endsWith("Controller.class")).sorted().toList();
        }
    }

    private Object controllerOf(Class<?> controller) throws Exception {
        Constructor<?> constructor = controller.getDeclaredConstructors()[0];
        constructor.setAccessible(true);
        return constructor.newInstance(listeningService(constructor.getParameterTypes()[0]));
    }

    /** The generated service, behind something that notes what it is given. */
    private Object listeningService(Class<?> service) throws Exception {
        Object implementation = Class.forName(service.getName() + "Impl").getDeclaredConstructor().newInstance();
        return Proxy.newProxyInstance(service.getClassLoader(), new Class<?>[] {service},
            (Object proxy, Method method, Object[] given) -> {
                if (given != null)
                    arguments.addAll(Arrays.asList(given));
                return method.invoke(implementation, given);
            });
    }

    /** What a user of Spring writes for parameters that are objects. */
    private static ConverterFactory<String, Record> recordsOfTexts() {
        return new ConverterFactory<String, Record>() {
            @Override
            public <T extends Record> org.springframework.core.convert.converter.Converter<String, T> getConverter(Class<T> type) {
                return text -> {
                    try {
                        return JSON.readValue(text, type);
                    } catch (IOException error) {
                        throw new IllegalArgumentException(error);
                    }
                };
            }
        };
    }

    private ObjectNode ask(JsonNode request) {
        ObjectNode told = JSON.createObjectNode();
        arguments.clear();
        try {
            String server = request.get("server").asText();
            if (!servers.containsKey(server))
                servers.put(server, serverOf(server));
            MvcResult result = servers.get(server).perform(requestOf(request)).andReturn();
            MockHttpServletResponse response = result.getResponse();
            String body = new String(response.getContentAsByteArray(), StandardCharsets.UTF_8);
            told.put("status", response.getStatus());
            if (result.getResolvedException() != null)
                told.put("reason", result.getResolvedException().toString());
            told.set("answer", body.isEmpty() ? null : JSON.readTree(body));
            told.set("arguments", JSON.valueToTree(arguments));
        } catch (Exception error) {
            told.put("failure", error.toString());
        }
        return told;
    }

    private static MockHttpServletRequestBuilder requestOf(JsonNode request) {
        MockHttpServletRequestBuilder made = MockMvcRequestBuilders.request(
            HttpMethod.valueOf(request.get("method").asText()), URI.create(request.get("url").asText()));
        made.accept(MediaType.APPLICATION_JSON);
        request.get("query").fields().forEachRemaining(entry -> made.param(entry.getKey(), entry.getValue().asText()));
        request.get("headers").fields().forEachRemaining(entry -> made.header(entry.getKey(), entry.getValue().asText()));
        request.get("cookies").fields()
            .forEachRemaining(entry -> made.cookie(new Cookie(entry.getKey(), entry.getValue().asText())));
        if (request.has("body"))
            made.contentType(MediaType.APPLICATION_JSON).content(request.get("body").toString());
        return made;
    }
}
